// An experiment file's JSON, read with nlohmann::ordered_json so that keys
// keep their file order (an experiment varies its keys in that order), and
// guarded against hostile files: repeated keys and deep nesting are refused,
// as the parser itself refuses numbers beyond a double's range.
#pragma once

#include <string>
#include <string_view>

#include <nlohmann/json.hpp>

namespace keldor::sweep {

using Json = nlohmann::ordered_json;

inline constexpr int MaxJsonDepth = 64;

struct JsonParse {
  Json Value;
  std::string Error;  // what is wrong, with the line and column where the parser knows them
};

JsonParse ParseJson(std::string_view text);

// A value as the results table and messages show it: a string's characters,
// a number in its shortest exact form, a list's items separated by spaces.
std::string JsonText(const Json& value);

}  // namespace keldor::sweep
