#include "worldfile/WorldFile.h"

#include <unordered_set>
#include <vector>

#include <nlohmann/json.hpp>

#include "worldfile/FieldReader.h"
#include "worldfile/FieldWriter.h"
#include "worldfile/JsonText.h"
#include "worldfile/WorldAgreement.h"
#include "worldfile/WorldFields.h"

namespace keldor {

namespace {

// Deeper than any world file; a deeper document is refused before it is built.
constexpr size_t MaxDepth = 32;

// Builds the document, refusing one nested too deeply and keeping the
// parser's message instead of throwing it. It follows the path of the value
// being parsed, so that a number too large for a double ("1e999") is refused
// naming its field.
class DocumentBuilder : public nlohmann::detail::json_sax_dom_parser<nlohmann::json> {
 public:
  using Base = nlohmann::detail::json_sax_dom_parser<nlohmann::json>;
  explicit DocumentBuilder(nlohmann::json& document) : Base(document, false) {}

  bool null() { return Value() && Base::null(); }
  bool boolean(bool v) { return Value() && Base::boolean(v); }
  bool number_integer(nlohmann::json::number_integer_t v) { return Value() && Base::number_integer(v); }
  bool number_unsigned(nlohmann::json::number_unsigned_t v) { return Value() && Base::number_unsigned(v); }
  bool number_float(nlohmann::json::number_float_t v, const std::string& text) {
    return Value() && Base::number_float(v, text);
  }
  bool string(std::string& v) { return Value() && Base::string(v); }
  bool key(std::string& v) {
    levels_.back().Key = v;
    // With a key given twice the last would win unseen.
    if (!levels_.back().Keys.insert(v).second) {
      fault_ = ValuePath() + ": given twice";
      return false;
    }
    return Base::key(v);
  }
  bool start_object(std::size_t size) { return Enter(false) && Base::start_object(size); }
  bool end_object() { return Leave() && Base::end_object(); }
  bool start_array(std::size_t size) { return Enter(true) && Base::start_array(size); }
  bool end_array() { return Leave() && Base::end_array(); }
  bool parse_error(std::size_t, const std::string&, const nlohmann::detail::exception& error) {
    // 406: a number outside the double range.
    fault_ = error.id == 406 ? ValuePath() + ": not a number" : "not a world state: " + std::string(error.what());
    return false;
  }

  const std::string& Fault() const { return fault_; }

 private:
  struct Level {
    bool IsList = false;
    std::string Key;  // of the value being parsed in an object
    std::unordered_set<std::string> Keys;  // met so far in an object
    size_t Items = 0;  // values begun in a list
  };

  bool Value() {
    if (!levels_.empty() && levels_.back().IsList) ++levels_.back().Items;
    return true;
  }
  bool Enter(bool isList) {
    Value();
    if (levels_.size() >= MaxDepth) {
      fault_ = "not a world state: nested deeper than " + std::to_string(MaxDepth) + " levels";
      return false;
    }
    levels_.push_back({isList, {}, {}, 0});
    return true;
  }
  bool Leave() {
    levels_.pop_back();
    return true;
  }

  // The field the parser is at ("Cells[3].Food").
  std::string ValuePath() const {
    std::string path;
    for (size_t i = 0; i < levels_.size(); ++i) {
      const Level& level = levels_[i];
      const bool innermost = i + 1 == levels_.size();
      if (level.IsList) {
        path += "[" + std::to_string(innermost ? level.Items : level.Items - 1) + "]";
      } else {
        path += (path.empty() ? "" : ".") + level.Key;
      }
    }
    return path;
  }

  std::vector<Level> levels_;
  std::string fault_;
};

}  // namespace

std::string WorldFileText(const World& world, const WindowRecord& window, const ResumeState& resume) {
  nlohmann::json document = nlohmann::json::object();
  FieldWriter writer(document);
  int version = WorldFileFormatVersion;
  worldfields::DescribeWorldFile(writer, world, window, resume, version);
  return JsonText(document);
}

std::optional<std::string> ReadWorldFileText(std::string_view text, World& world, WindowRecord& window,
                                             ResumeState& resume) {
  nlohmann::json document;
  DocumentBuilder builder(document);
  const bool parsed = nlohmann::json::sax_parse(text, &builder, nlohmann::json::input_format_t::json, true);
  if (!parsed || !builder.Fault().empty()) return builder.Fault();
  if (!document.is_object()) return "not a world state: the document is not an object";
  FieldReader reader(document);
  int version = WorldFileFormatVersion;
  worldfields::DescribeWorldFile(reader, world, window, resume, version);
  if (reader.Failed()) return reader.Error();
  return FindDisagreement(world);
}

}  // namespace keldor
