#include "worldfile/FieldReader.h"

#include <cmath>
#include <limits>

#include "model/Numeric.h"

namespace keldor {

namespace {

std::string RangeText(Range range) { return "from " + std::to_string(range.Lo) + " to " + std::to_string(range.Hi); }

bool IsHexWord(const nlohmann::json& word) {
  if (!word.is_string()) return false;
  const std::string& text = word.get_ref<const std::string&>();
  return text.size() == 16 && text.find_first_not_of("0123456789abcdefABCDEF") == std::string::npos;
}

}  // namespace

void FieldReader::Fail(const char* key, const std::string& problem) {
  if (Failed()) return;
  std::string field;
  for (const std::string& part : path_) {
    if (!field.empty() && part.front() != '[') field += '.';
    field += part;
  }
  if (key != nullptr && *key != '\0') field += (field.empty() ? "" : ".") + std::string(key);
  error_ = field + ": " + problem;
}

const nlohmann::json* FieldReader::Find(const char* key) {
  if (Failed()) return nullptr;
  const auto it = current_->find(key);
  if (it == current_->end()) {
    Fail(key, "missing");
    return nullptr;
  }
  return &*it;
}

std::optional<double> FieldReader::Number(const char* key) {
  const nlohmann::json* value = Find(key);
  if (value == nullptr) return std::nullopt;
  if (!value->is_number() || !std::isfinite(value->get<double>())) {
    Fail(key, "not a number");
    return std::nullopt;
  }
  return value->get<double>();
}

std::optional<int64_t> FieldReader::Integer(const char* key, Range range) {
  const nlohmann::json* value = Find(key);
  if (value == nullptr) return std::nullopt;
  if (!value->is_number() || !std::isfinite(value->get<double>())) {
    Fail(key, "not a number");
    return std::nullopt;
  }
  bool whole = false;
  int64_t v = 0;
  if (value->is_number_integer() && !value->is_number_unsigned()) {
    v = value->get<int64_t>();
    whole = true;
  } else if (value->is_number_unsigned()) {
    const uint64_t u = value->get<uint64_t>();
    whole = u <= static_cast<uint64_t>(INT64_MAX);
    v = static_cast<int64_t>(u);
  } else {
    // Range bounds are below 2^63, so the conversion of a value inside them is exact.
    const double d = value->get<double>();
    whole = std::trunc(d) == d && d >= -0x1p63 && d < 0x1p63;
    if (whole) v = static_cast<int64_t>(d);
  }
  if (!whole || v < range.Lo || v > range.Hi) {
    Fail(key, "not a whole number " + RangeText(range));
    return std::nullopt;
  }
  return v;
}

void FieldReader::Field(const char* key, double& v, NumberCheck check) {
  const std::optional<double> number = Number(key);
  if (!number) return;
  if (!check.Ok(*number)) return Fail(key, check.Problem);
  v = *number;
}

void FieldReader::Field(const char* key, float& v) {
  const std::optional<double> number = Number(key);
  if (!number) return;
  if (std::fabs(*number) > std::numeric_limits<float>::max()) return Fail(key, "outside the single-precision range");
  v = static_cast<float>(*number);
}

void FieldReader::Field(const char* key, int64_t& v, Range range) {
  if (const auto number = Integer(key, range)) v = *number;
}

void FieldReader::Field(const char* key, int16_t& v, Range range) {
  if (const auto number = Integer(key, range)) v = static_cast<int16_t>(*number);
}

void FieldReader::Field(const char* key, int& v, Range range) {
  if (const auto number = Integer(key, range)) v = static_cast<int>(*number);
}

void FieldReader::Field(const char* key, uint32_t& v, Range range) {
  if (const auto number = Integer(key, range)) v = static_cast<uint32_t>(*number);
}

void FieldReader::Field(const char* key, bool& v) {
  const nlohmann::json* value = Find(key);
  if (value == nullptr) return;
  if (!value->is_boolean()) return Fail(key, "not true or false");
  v = value->get<bool>();
}

void FieldReader::Field(const char* key, std::string& v) {
  const nlohmann::json* value = Find(key);
  if (value == nullptr) return;
  if (!value->is_string()) return Fail(key, "not a text");
  v = value->get<std::string>();
}

void FieldReader::Field(const char* key, Colour& v) {
  if (const auto packed = Integer(key, {0, Colour::MaxPacked})) v = Colour::FromPacked(static_cast<uint32_t>(*packed));
}

void FieldReader::Field(const char* key, Signature& v) {
  std::string text;
  Field(key, text);
  if (Failed()) return;
  if (text.size() > static_cast<size_t>(Signature::Capacity) || text.find_first_not_of("01") != std::string::npos) {
    return Fail(key, "not a signature of up to 16 digits 0 and 1");
  }
  v = Signature(text);
}

void FieldReader::Field(const char* key, Tool& v) {
  if (const auto tool = Integer(key, {NoTool, NestTool})) v = static_cast<Tool>(*tool);
}

void FieldReader::Field(const char* key, RandomState& words) {
  const nlohmann::json* items = ListOf(key, static_cast<int64_t>(words.size()));
  if (items == nullptr) return;
  for (size_t i = 0; i < words.size(); ++i) {
    const nlohmann::json& word = (*items)[i];
    if (!IsHexWord(word)) return Fail(key, "not four words of 16 hex digits");
    words[i] = std::stoull(word.get_ref<const std::string&>(), nullptr, 16);
  }
}

void FieldReader::Nullable(const char* key, std::optional<double>& v, NumberCheck check) {
  const nlohmann::json* value = Find(key);
  if (value == nullptr || value->is_null()) return;
  double number = 0;
  Field(key, number, check);
  if (!Failed()) v = number;
}

void FieldReader::Nullable(const char* key, std::optional<uint64_t>& v, Absent absent) {
  if (Failed()) return;
  if (absent == Absent::AsNull && !current_->contains(key)) return;
  const nlohmann::json* value = Find(key);
  if (value == nullptr || value->is_null()) return;
  if (value->is_number_unsigned() || (value->is_number_integer() && value->get<int64_t>() >= 0)) {
    v = value->get<uint64_t>();
    return;
  }
  const double d = value->is_number_float() ? value->get<double>() : -1;
  if (!(std::trunc(d) == d && d >= 0 && d < 0x1p64)) return Fail(key, "not null or a whole number from 0 to 2^64 - 1");
  v = static_cast<uint64_t>(d);
}

int16_t FieldReader::Count(const char* key, int16_t) {
  int16_t count = 0;
  Field(key, count, CountRange);
  return count;
}

void FieldReader::Constant(const char* key, double v) {
  const std::optional<double> number = Number(key);
  if (number && *number != v) Fail(key, "must be " + CStr(v));
}

void FieldReader::LastSerial(const char* key, uint32_t& last) {
  if (Failed()) return;
  lastSerial_ = &last;
  givesSerials_ = !current_->contains(key);
  if (!givesSerials_) Field(key, last, {0, UINT32_MAX});
}

void FieldReader::Serial(const char* key, uint32_t& serial, SerialUse use) {
  if (Failed()) return;
  if (givesSerials_) {
    serial = use == SerialUse::Identity ? ++*lastSerial_ : 0;
    return;
  }
  Field(key, serial, {0, *lastSerial_});
  if (!Failed() && use == SerialUse::Identity && !serials_.insert(serial).second) Fail(key, "not unique");
}

const nlohmann::json* FieldReader::ListOf(const char* key, int64_t size) {
  const nlohmann::json* value = Find(key);
  if (value == nullptr) return nullptr;
  if (!value->is_array()) {
    Fail(key, "not a list");
    return nullptr;
  }
  if (size >= 0 && static_cast<int64_t>(value->size()) != size) {
    Fail(key, "holds " + std::to_string(value->size()) + " items where " + std::to_string(size) + " are expected");
    return nullptr;
  }
  return value;
}

}  // namespace keldor
