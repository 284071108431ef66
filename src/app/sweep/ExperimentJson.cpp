#include "app/sweep/ExperimentJson.h"

#include <charconv>
#include <set>
#include <vector>

namespace keldor::sweep {

namespace {

// Thrown by the parser's callback to stop at a hostile construct.
struct Refusal {
  std::string Message;
};

}  // namespace

JsonParse ParseJson(std::string_view text) {
  JsonParse parsed;
  std::vector<std::set<std::string>> openObjectKeys;
  const Json::parser_callback_t guard = [&](int depth, Json::parse_event_t event, Json& value) {
    using Event = Json::parse_event_t;
    if (depth > MaxJsonDepth) throw Refusal{"nested deeper than " + std::to_string(MaxJsonDepth) + " levels"};
    if (event == Event::object_start) openObjectKeys.emplace_back();
    if (event == Event::object_end) openObjectKeys.pop_back();
    if (event == Event::key && !openObjectKeys.back().insert(value.get<std::string>()).second) {
      throw Refusal{"\"" + value.get<std::string>() + "\" appears twice"};
    }
    return true;
  };
  try {
    parsed.Value = Json::parse(text, guard);
  } catch (const Refusal& refusal) {
    parsed.Error = refusal.Message;
  } catch (const nlohmann::json::exception& error) {
    // A syntax error or a number beyond a double's range (1e400), without its
    // "[json.exception.parse_error.101] " tag.
    const std::string what = error.what();
    const size_t tagEnd = what.find("] ");
    parsed.Error = tagEnd == std::string::npos ? what : what.substr(tagEnd + 2);
  }
  return parsed;
}

std::string JsonText(const Json& value) {
  if (value.is_string()) return value.get<std::string>();
  if (value.is_number_float()) {
    char buffer[64];
    const auto result = std::to_chars(buffer, buffer + sizeof buffer, value.get<double>());
    return std::string(buffer, result.ptr);
  }
  if (value.is_array()) {
    std::string text;
    for (const Json& item : value) text += (text.empty() ? "" : " ") + JsonText(item);
    return text;
  }
  return value.dump();
}

}  // namespace keldor::sweep
