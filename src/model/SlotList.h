// The growable list every world container uses: a zero-based array with a
// separate 16-bit count and one spare slot after the last live item.
//
// Append reuses the spare slot as the new item without clearing it and adds a
// fresh zeroed spare. Remove(i) copies the last live item over slot i and
// drops the old spare, so the new spare still holds the moved item's fields.
// Callers that never write every field of a new item (births) rely on this.
#pragma once

#include <cassert>
#include <cstdint>
#include <vector>

#include "model/Numeric.h"

namespace keldor {

template <class T>
class SlotList {
 public:
  SlotList() : slots_(1) {}

  int16_t Count() const { return count_; }
  bool Empty() const { return count_ == 0; }
  // A list holds at most 32767 live items; Append must not be called then.
  bool CanAppend() const { return count_ < Int16Max; }

  // Live items are 0..Count()-1; index Count() is the spare slot.
  T& operator[](int i) {
    assert(i >= 0 && i <= count_);
    return slots_[static_cast<size_t>(i)];
  }
  const T& operator[](int i) const {
    assert(i >= 0 && i <= count_);
    return slots_[static_cast<size_t>(i)];
  }

  // Grows the list by one and returns the new last item, which is the former
  // spare slot with whatever it held.
  T& Append() {
    assert(CanAppend());
    ++count_;
    slots_.resize(static_cast<size_t>(count_) + 1);
    return slots_[static_cast<size_t>(count_) - 1];
  }

  // Moves the last live item into slot i and shrinks the list by one.
  void Remove(int i) {
    assert(i >= 0 && i < count_);
    if (i != count_ - 1) slots_[static_cast<size_t>(i)] = slots_[static_cast<size_t>(count_) - 1];
    --count_;
    slots_.resize(static_cast<size_t>(count_) + 1);
  }

  // A fresh list: no items, one zeroed spare slot.
  void Clear() {
    slots_.assign(1, T{});
    count_ = 0;
  }

  // A fresh list of count zeroed items and a zeroed spare slot.
  void Reset(int16_t count) {
    assert(count >= 0);
    slots_.assign(static_cast<size_t>(count) + 1, T{});
    count_ = count;
  }

  // Number of slots including the spare (Count() + 1).
  size_t SlotCount() const { return slots_.size(); }

  auto begin() { return slots_.begin(); }
  auto end() { return slots_.begin() + count_; }
  auto begin() const { return slots_.begin(); }
  auto end() const { return slots_.begin() + count_; }

  bool operator==(const SlotList&) const = default;

 private:
  std::vector<T> slots_;
  int16_t count_ = 0;
};

}  // namespace keldor
