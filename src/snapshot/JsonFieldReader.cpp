#include "snapshot/JsonFieldReader.h"

#include <cmath>
#include <limits>

namespace keldor {

void JsonFieldReader::Fail(const char* key, const std::string& problem) {
  if (Failed()) return;
  std::string field;
  for (const std::string& part : path_) {
    if (!field.empty() && part.front() != '[') field += '.';
    field += part;
  }
  if (key != nullptr && *key != '\0') field += (field.empty() ? "" : ".") + std::string(key);
  error_ = field + ": " + problem;
}

QJsonValue JsonFieldReader::Field(const QJsonObject& object, const char* key) {
  if (Failed()) return {};
  const auto it = object.constFind(QLatin1String(key));
  if (it == object.constEnd()) {
    Fail(key, "missing");
    return {};
  }
  return *it;
}

double JsonFieldReader::Number(const QJsonObject& object, const char* key) {
  const QJsonValue value = Field(object, key);
  if (Failed()) return 0;
  if (!value.isDouble() || !std::isfinite(value.toDouble())) {
    Fail(key, "not a number");
    return 0;
  }
  return value.toDouble();
}

float JsonFieldReader::Single(const QJsonObject& object, const char* key) {
  const double v = Number(object, key);
  if (std::fabs(v) > std::numeric_limits<float>::max()) {
    Fail(key, "outside the single-precision range");
    return 0;
  }
  return static_cast<float>(v);
}

int64_t JsonFieldReader::Integer(const QJsonObject& object, const char* key, int64_t lo, int64_t hi) {
  const double v = Number(object, key);
  if (Failed()) return lo;
  if (std::trunc(v) != v || v < static_cast<double>(lo) || v > static_cast<double>(hi)) {
    Fail(key, "not a whole number from " + std::to_string(lo) + " to " + std::to_string(hi));
    return lo;
  }
  return static_cast<int64_t>(v);
}

int16_t JsonFieldReader::Int16(const QJsonObject& object, const char* key, int lo, int hi) {
  return static_cast<int16_t>(Integer(object, key, lo, hi));
}

bool JsonFieldReader::Bool(const QJsonObject& object, const char* key) {
  const QJsonValue value = Field(object, key);
  if (!Failed() && !value.isBool()) Fail(key, "not true or false");
  return value.toBool();
}

std::string JsonFieldReader::Text(const QJsonObject& object, const char* key) {
  const QJsonValue value = Field(object, key);
  if (!Failed() && !value.isString()) Fail(key, "not a text");
  return value.toString().toStdString();
}

QJsonObject JsonFieldReader::Object(const QJsonObject& object, const char* key) {
  const QJsonValue value = Field(object, key);
  if (!Failed() && !value.isObject()) Fail(key, "not an object");
  return value.toObject();
}

QJsonArray JsonFieldReader::Array(const QJsonObject& object, const char* key, int64_t size) {
  const QJsonValue value = Field(object, key);
  if (Failed()) return {};
  if (!value.isArray()) {
    Fail(key, "not a list");
    return {};
  }
  const QJsonArray array = value.toArray();
  if (size >= 0 && array.size() != size) {
    Fail(key, "holds " + std::to_string(array.size()) + " items where " + std::to_string(size) + " are expected");
    return {};
  }
  return array;
}

QJsonObject JsonFieldReader::Element(const QJsonArray& array, qsizetype i) {
  if (Failed()) return {};
  if (!array[i].isObject()) Fail(nullptr, "not an object");
  return array[i].toObject();
}

}  // namespace keldor
