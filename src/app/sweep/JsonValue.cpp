#include "app/sweep/JsonValue.h"

#include <charconv>
#include <cmath>
#include <cstdint>

namespace keldor::sweep {

const JsonValue* JsonValue::Find(std::string_view name) const {
  for (const auto& [key, value] : Members) {
    if (key == name) return &value;
  }
  return nullptr;
}

namespace {

class JsonReader {
 public:
  explicit JsonReader(std::string_view text) : text_(text) {}

  JsonParse Document() {
    JsonParse result;
    JsonValue value;
    SkipSpace();
    if (Value(value, 0)) {
      SkipSpace();
      if (pos_ == text_.size()) {
        result.Value = std::move(value);
        return result;
      }
      Fail("unexpected text after the document");
    }
    result.Error = error_;
    return result;
  }

 private:
  bool Fail(const std::string& what) {
    if (!error_.empty()) return false;
    int line = 1;
    size_t lineStart = 0;
    for (size_t i = 0; i < pos_ && i < text_.size(); ++i) {
      if (text_[i] == '\n') {
        ++line;
        lineStart = i + 1;
      }
    }
    error_ = "line " + std::to_string(line) + ", column " + std::to_string(pos_ - lineStart + 1) + ": " + what;
    return false;
  }

  bool AtEnd() const { return pos_ >= text_.size(); }
  char Peek() const { return AtEnd() ? '\0' : text_[pos_]; }

  void SkipSpace() {
    while (!AtEnd() && (Peek() == ' ' || Peek() == '\t' || Peek() == '\n' || Peek() == '\r')) ++pos_;
  }

  bool Literal(std::string_view word) {
    if (text_.substr(pos_, word.size()) != word) return Fail("unknown word");
    pos_ += word.size();
    return true;
  }

  bool Value(JsonValue& out, int depth) {
    if (depth > MaxJsonDepth) return Fail("nested deeper than " + std::to_string(MaxJsonDepth) + " levels");
    switch (Peek()) {
      case '{': return Object(out, depth);
      case '[': return Array(out, depth);
      case '"': out.Type = JsonValue::Kind::String; return String(out.Text);
      case 't': out.Type = JsonValue::Kind::Bool; out.Bool = true; return Literal("true");
      case 'f': out.Type = JsonValue::Kind::Bool; return Literal("false");
      case 'n': return Literal("null");
      default: return Number(out);
    }
  }

  bool Object(JsonValue& out, int depth) {
    out.Type = JsonValue::Kind::Object;
    ++pos_;
    SkipSpace();
    if (Peek() == '}') return ++pos_, true;
    while (true) {
      SkipSpace();
      if (Peek() != '"') return Fail("expected a quoted name");
      std::string name;
      const size_t nameStart = pos_;
      if (!String(name)) return false;
      if (out.Find(name) != nullptr) {
        pos_ = nameStart;
        return Fail("\"" + name + "\" appears twice");
      }
      SkipSpace();
      if (Peek() != ':') return Fail("expected ':'");
      ++pos_;
      SkipSpace();
      JsonValue member;
      if (!Value(member, depth + 1)) return false;
      out.Members.push_back({std::move(name), std::move(member)});
      SkipSpace();
      if (Peek() == '}') return ++pos_, true;
      if (Peek() != ',') return Fail("expected ',' or '}'");
      ++pos_;
    }
  }

  bool Array(JsonValue& out, int depth) {
    out.Type = JsonValue::Kind::Array;
    ++pos_;
    SkipSpace();
    if (Peek() == ']') return ++pos_, true;
    while (true) {
      SkipSpace();
      JsonValue item;
      if (!Value(item, depth + 1)) return false;
      out.Items.push_back(std::move(item));
      SkipSpace();
      if (Peek() == ']') return ++pos_, true;
      if (Peek() != ',') return Fail("expected ',' or ']'");
      ++pos_;
    }
  }

  size_t Digits() {
    const size_t start = pos_;
    while (Peek() >= '0' && Peek() <= '9') ++pos_;
    return pos_ - start;
  }

  bool Number(JsonValue& out) {
    const size_t start = pos_;
    if (Peek() == '-') ++pos_;
    if (Peek() == '0') {
      ++pos_;
    } else if (Digits() == 0) {
      return Fail("expected a value");
    }
    if (Peek() == '.') {
      ++pos_;
      if (Digits() == 0) return Fail("expected a digit after '.'");
    }
    if (Peek() == 'e' || Peek() == 'E') {
      ++pos_;
      if (Peek() == '+' || Peek() == '-') ++pos_;
      if (Digits() == 0) return Fail("expected a digit in the exponent");
    }
    out.Type = JsonValue::Kind::Number;
    out.Text = std::string(text_.substr(start, pos_ - start));
    // Out of range gives an infinite or zero value, which the checks refuse.
    const auto parsed = std::from_chars(out.Text.data(), out.Text.data() + out.Text.size(), out.Number);
    if (parsed.ec == std::errc::result_out_of_range) out.Number = out.Text[0] == '-' ? -HUGE_VAL : HUGE_VAL;
    return true;
  }

  std::optional<uint32_t> Hex4() {
    if (pos_ + 4 > text_.size()) return std::nullopt;
    uint32_t v = 0;
    const auto parsed = std::from_chars(text_.data() + pos_, text_.data() + pos_ + 4, v, 16);
    if (parsed.ec != std::errc() || parsed.ptr != text_.data() + pos_ + 4) return std::nullopt;
    pos_ += 4;
    return v;
  }

  static void AppendUtf8(std::string& out, uint32_t c) {
    if (c < 0x80) {
      out += static_cast<char>(c);
    } else if (c < 0x800) {
      out += static_cast<char>(0xC0 | (c >> 6));
      out += static_cast<char>(0x80 | (c & 0x3F));
    } else if (c < 0x10000) {
      out += static_cast<char>(0xE0 | (c >> 12));
      out += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
      out += static_cast<char>(0x80 | (c & 0x3F));
    } else {
      out += static_cast<char>(0xF0 | (c >> 18));
      out += static_cast<char>(0x80 | ((c >> 12) & 0x3F));
      out += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
      out += static_cast<char>(0x80 | (c & 0x3F));
    }
  }

  // \uXXXX, with a surrogate pair read as one character.
  bool Unicode(std::string& out) {
    const auto high = Hex4();
    if (!high) return Fail("expected four hex digits after \\u");
    uint32_t c = *high;
    if (c >= 0xD800 && c <= 0xDBFF) {
      if (text_.substr(pos_, 2) != "\\u") return Fail("unpaired surrogate");
      pos_ += 2;
      const auto low = Hex4();
      if (!low || *low < 0xDC00 || *low > 0xDFFF) return Fail("unpaired surrogate");
      c = 0x10000 + ((c - 0xD800) << 10) + (*low - 0xDC00);
    } else if (c >= 0xDC00 && c <= 0xDFFF) {
      return Fail("unpaired surrogate");
    }
    AppendUtf8(out, c);
    return true;
  }

  bool String(std::string& out) {
    ++pos_;
    while (true) {
      if (AtEnd()) return Fail("unterminated string");
      const char c = text_[pos_++];
      if (c == '"') return true;
      if (static_cast<unsigned char>(c) < 0x20) return Fail("control character in a string");
      if (c != '\\') {
        out += c;
        continue;
      }
      if (AtEnd()) return Fail("unterminated string");
      const char e = text_[pos_++];
      switch (e) {
        case '"': case '\\': case '/': out += e; break;
        case 'b': out += '\b'; break;
        case 'f': out += '\f'; break;
        case 'n': out += '\n'; break;
        case 'r': out += '\r'; break;
        case 't': out += '\t'; break;
        case 'u': if (!Unicode(out)) return false; break;
        default: return Fail("unknown escape in a string");
      }
    }
  }

  std::string_view text_;
  size_t pos_ = 0;
  std::string error_;
};

}  // namespace

JsonParse ParseJson(std::string_view text) { return JsonReader(text).Document(); }

}  // namespace keldor::sweep
