// The writing side of the world file's field description: each described
// field becomes a key of the JSON object being built. Derived counts and
// constants are written as given; checks are ignored.
#pragma once

#include <cstdint>
#include <cstdio>
#include <optional>
#include <string>

#include <nlohmann/json.hpp>

#include "model/Colour.h"
#include "model/Random.h"
#include "model/Signature.h"
#include "sim/TickInput.h"
#include "worldfile/FieldChecks.h"

namespace keldor {

class FieldWriter {
 public:
  explicit FieldWriter(nlohmann::json& root) : current_(&root) {}

  bool Failed() const { return false; }

  void Field(const char* key, double v, NumberCheck = AnyNumber) { Put(key, v); }
  void Field(const char* key, float v) { Put(key, static_cast<double>(v)); }
  void Field(const char* key, int64_t v, Range = {}) { Put(key, v); }
  void Field(const char* key, int16_t v, Range = {}) { Put(key, int64_t{v}); }
  void Field(const char* key, int v, Range = {}) { Put(key, int64_t{v}); }
  void Field(const char* key, bool v) { Put(key, v); }
  void Field(const char* key, const std::string& v) { Put(key, v); }
  void Field(const char* key, Colour v) { Put(key, int64_t{v.Packed()}); }
  void Field(const char* key, const Signature& v) { Put(key, v.ToString()); }
  void Field(const char* key, Tool v) { Put(key, int64_t{v}); }
  // The generator's words as 16 hex digits each: JSON numbers cannot hold 64 bits.
  void Field(const char* key, const RandomState& words) {
    nlohmann::json items = nlohmann::json::array();
    for (const uint64_t word : words) {
      char hex[17];
      std::snprintf(hex, sizeof hex, "%016llx", static_cast<unsigned long long>(word));
      items.push_back(hex);
    }
    Put(key, std::move(items));
  }
  void Nullable(const char* key, const std::optional<double>& v, NumberCheck = AnyNumber) {
    Put(key, v ? nlohmann::json(*v) : nlohmann::json());
  }
  void Nullable(const char* key, const std::optional<uint64_t>& v, Absent = Absent::Refused) {
    Put(key, v ? nlohmann::json(*v) : nlohmann::json());
  }

  // A count the reader checks a list against; returns it.
  int16_t Count(const char* key, int16_t live) {
    Put(key, int64_t{live});
    return live;
  }
  // A value that follows from the fields before it.
  void Constant(const char* key, double v) { Put(key, v); }
  void LastSerial(const char* key, uint32_t v) { Put(key, int64_t{v}); }
  void Serial(const char* key, uint32_t v, SerialUse) { Put(key, int64_t{v}); }
  // Checks only the reader makes: what the writer writes always passes.
  void Require(const char*, bool, const std::string&) {}

  template <class Describe>
  void Object(const char* key, Describe describe) {
    nlohmann::json* outer = current_;
    current_ = &((*current_)[key] = nlohmann::json::object());
    describe();
    current_ = outer;
  }

  // `size` objects, item i described by describe(i); `resize` is the
  // reader's, to make room once the length is known.
  template <class Resize, class Describe>
  void List(const char* key, int64_t size, Resize, Describe describe) {
    nlohmann::json* outer = current_;
    nlohmann::json& items = (*current_)[key] = nlohmann::json::array();
    for (int64_t i = 0; i < size; ++i) {
      items.push_back(nlohmann::json::object());
      current_ = &items.back();
      describe(static_cast<int>(i));
    }
    current_ = outer;
  }

 private:
  template <class T>
  void Put(const char* key, T&& value) {
    (*current_)[key] = std::forward<T>(value);
  }

  nlohmann::json* current_;
};

}  // namespace keldor
