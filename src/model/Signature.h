// A colony signature: a short string of "0"/"1" characters (16 in practice)
// held inline, so copying a cell or a nest never allocates. The slots past
// the length stay zero, so two signatures compare as two fixed-size arrays.
#pragma once

#include <array>
#include <cassert>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>

namespace keldor {

class Signature {
 public:
  static constexpr int Capacity = 16;

  constexpr Signature() = default;  // the empty signature of a never-touched cell
  constexpr explicit Signature(std::string_view text) {
    assert(text.size() <= Capacity);
    length_ = static_cast<uint8_t>(text.size());
    for (size_t k = 0; k < text.size(); ++k) chars_[k] = text[k];
  }

  // "0000000000000000": the mark of a cell no colony has claimed.
  static constexpr Signature Unmarked() { return Signature(std::string_view("0000000000000000")); }

  int Length() const { return length_; }
  bool Empty() const { return length_ == 0; }
  char operator[](int k) const { return chars_[static_cast<size_t>(k)]; }
  std::string_view View() const { return {chars_.data(), length_}; }
  std::string ToString() const { return std::string(View()); }

  bool operator==(const Signature& other) const {
    // Two 8-byte words each: compilers call memcmp for the array comparison.
    uint64_t a[2];
    uint64_t b[2];
    std::memcpy(a, chars_.data(), sizeof a);
    std::memcpy(b, other.chars_.data(), sizeof b);
    return length_ == other.length_ && a[0] == b[0] && a[1] == b[1];
  }

 private:
  static_assert(Capacity == 16);
  std::array<char, Capacity> chars_{};
  uint8_t length_ = 0;
};

}  // namespace keldor
