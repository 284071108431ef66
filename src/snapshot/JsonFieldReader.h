// Reads the fields of a JSON document one by one, checking each against its
// type and range, and keeps the first fault with the path of the field that
// caused it ("Nests[1].Ants[4].Energy: ..."). After a fault every read returns
// a harmless default, so the caller checks Failed() once at the end.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include <QJsonArray>
#include <QJsonObject>

namespace keldor {

class JsonFieldReader {
 public:
  bool Failed() const { return !error_.empty(); }
  const std::string& Error() const { return error_; }

  // The field names below it are read inside `name` (an object key or "[i]").
  class Scope {
   public:
    Scope(JsonFieldReader& reader, std::string name) : reader_(reader) { reader_.path_.push_back(std::move(name)); }
    ~Scope() { reader_.path_.pop_back(); }
    Scope(const Scope&) = delete;
    Scope& operator=(const Scope&) = delete;

   private:
    JsonFieldReader& reader_;
  };

  double Number(const QJsonObject& object, const char* key);
  // A finite number that is also a finite single-precision value.
  float Single(const QJsonObject& object, const char* key);
  int64_t Integer(const QJsonObject& object, const char* key, int64_t lo, int64_t hi);
  int16_t Int16(const QJsonObject& object, const char* key, int lo = INT16_MIN, int hi = INT16_MAX);
  bool Bool(const QJsonObject& object, const char* key);
  std::string Text(const QJsonObject& object, const char* key);
  QJsonObject Object(const QJsonObject& object, const char* key);
  // An array; `size`, when not negative, is the length it must have.
  QJsonArray Array(const QJsonObject& object, const char* key, int64_t size = -1);
  // Element i of an array, which must be an object.
  QJsonObject Element(const QJsonArray& array, qsizetype i);

  // Records a fault of the field `key` in the current scope.
  void Fail(const char* key, const std::string& problem);

 private:
  QJsonValue Field(const QJsonObject& object, const char* key);

  std::vector<std::string> path_;
  std::string error_;
};

}  // namespace keldor
