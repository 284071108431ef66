// The reading side of the world file's field description: each described
// field is looked up in the JSON object being read and checked against its
// type and range. The first fault is kept with the path of its field
// ("Nests[1].Ants[4].Energy: ..."); after it every read leaves its target
// alone, so the description runs on and the caller checks Failed() once.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <unordered_set>
#include <vector>

#include <nlohmann/json.hpp>

#include "model/Colour.h"
#include "model/Random.h"
#include "model/Signature.h"
#include "sim/TickInput.h"
#include "worldfile/FieldChecks.h"

namespace keldor {

class FieldReader {
 public:
  explicit FieldReader(const nlohmann::json& root) : current_(&root) {}

  bool Failed() const { return !error_.empty(); }
  const std::string& Error() const { return error_; }

  void Field(const char* key, double& v, NumberCheck check = AnyNumber);
  // A finite number that is also a finite single-precision value.
  void Field(const char* key, float& v);
  void Field(const char* key, int64_t& v, Range range);
  void Field(const char* key, int16_t& v, Range range = {});
  void Field(const char* key, int& v, Range range);
  void Field(const char* key, uint32_t& v, Range range);
  void Field(const char* key, bool& v);
  void Field(const char* key, std::string& v);
  void Field(const char* key, Colour& v);
  void Field(const char* key, Signature& v);
  void Field(const char* key, Tool& v);
  void Field(const char* key, RandomState& words);
  void Nullable(const char* key, std::optional<double>& v, NumberCheck check = AnyNumber);
  void Nullable(const char* key, std::optional<uint64_t>& v, Absent absent = Absent::Refused);

  // A count from 0 to 32767 that a list is checked against.
  int16_t Count(const char* key, int16_t);
  void Constant(const char* key, double v);
  // Without LastSerial (files written before serials were kept), ants and
  // nests get fresh serials in file order and LastSerial the last one.
  void LastSerial(const char* key, uint32_t& last);
  void Serial(const char* key, uint32_t& serial, SerialUse use);
  void Require(const char* key, bool ok, const std::string& problem) {
    if (!ok) Fail(key, problem);
  }

  template <class Describe>
  void Object(const char* key, Describe describe) {
    const nlohmann::json* inner = Find(key);
    if (inner == nullptr) return;
    if (!inner->is_object()) return Fail(key, "not an object");
    Enter(key, inner, describe);
  }

  // A list of `size` objects: its length is checked first, then resize()
  // makes room and describe(i) reads item i.
  template <class Resize, class Describe>
  void List(const char* key, int64_t size, Resize resize, Describe describe) {
    const nlohmann::json* items = ListOf(key, size);
    if (items == nullptr) return;
    resize();
    if (Failed()) return;
    Enter(key, current_, [&] {
      for (size_t i = 0; i < items->size() && !Failed(); ++i) {
        const nlohmann::json& item = (*items)[i];
        Enter("[" + std::to_string(i) + "]", &item, [&] {
          if (!item.is_object()) return Fail(nullptr, "not an object");
          describe(static_cast<int>(i));
        });
      }
    });
  }

  // Records a fault of the field `key` in the current object.
  void Fail(const char* key, const std::string& problem);

 private:
  template <class Describe>
  void Enter(std::string name, const nlohmann::json* inner, Describe describe) {
    const nlohmann::json* outer = current_;
    path_.push_back(std::move(name));
    current_ = inner;
    describe();
    current_ = outer;
    path_.pop_back();
  }

  // The value under key, or null after a fault or when it is missing.
  const nlohmann::json* Find(const char* key);
  const nlohmann::json* ListOf(const char* key, int64_t size);
  std::optional<double> Number(const char* key);
  std::optional<int64_t> Integer(const char* key, Range range);

  const nlohmann::json* current_;
  std::vector<std::string> path_;
  std::string error_;
  uint32_t* lastSerial_ = nullptr;
  bool givesSerials_ = false;
  std::unordered_set<uint32_t> serials_;
};

}  // namespace keldor
