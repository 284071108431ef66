// A JSON document read into a tree that keeps the order of every object's
// keys as the file writes them (an experiment varies its keys in file order).
// Numbers keep their text, so a value reaches the command line as written.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace keldor::sweep {

struct JsonMember;

struct JsonValue {
  enum class Kind { Null, Bool, Number, String, Array, Object };
  Kind Type = Kind::Null;
  bool Bool = false;
  double Number = 0;
  std::string Text;  // a string's characters (UTF-8), or a number as written
  std::vector<JsonValue> Items;
  std::vector<JsonMember> Members;  // in file order, names unique

  // The member named `name`, or null.
  const JsonValue* Find(std::string_view name) const;
};

struct JsonMember {
  std::string Name;
  JsonValue Value;
};

struct JsonParse {
  std::optional<JsonValue> Value;
  std::string Error;  // "line L, column C: what is wrong" when Value is empty
};

// Reads one JSON document (RFC 8259). A repeated name within an object and
// nesting deeper than MaxJsonDepth are refused.
inline constexpr int MaxJsonDepth = 64;
JsonParse ParseJson(std::string_view text);

}  // namespace keldor::sweep
