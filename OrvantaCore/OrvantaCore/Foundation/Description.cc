#include "orvanta/Foundation/Description.h"

#include <algorithm>
#include <vector>

#include "orvanta/Foundation/Array.h"
#include "orvanta/Foundation/Dictionary.h"
#include "orvanta/Foundation/JSON.h"
#include "orvanta/Foundation/Number.h"
#include "orvanta/Foundation/Url.h"

namespace orvanta {

namespace {

bool isAlphanumeric(char c) {
  return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

/// Removes and returns the first character of a UTF-8 string. A stray byte counts as a character.
char32_t takeCharacter(std::string_view& text) {
  const auto lead = static_cast<unsigned char>(text.front());
  const std::size_t length = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : lead >= 0xC0 ? 2 : 1;
  if (length == 1 || length > text.size()) {
    text.remove_prefix(1);
    return lead;
  }
  auto code = static_cast<char32_t>(lead & (0x7FU >> length));
  for (std::size_t i = 1; i < length; ++i) {
    code = code << 6U | (static_cast<unsigned char>(text[i]) & 0x3FU);
  }
  text.remove_prefix(length);
  return code;
}

class Describer {
 public:
  explicit Describer(std::size_t maxBytes = std::string::npos) : maxBytes_(maxBytes) {}

  std::string take() {
    if (isFull()) out_.replace(maxBytes_, std::string::npos, " …");
    return std::move(out_);
  }

  void describe(const Value& value) {
    if (const Dictionary* dictionary = value.dictionary()) {
      describe(*dictionary);
    } else if (const Array* array = value.array()) {
      describe(*array);
    } else if (const auto text = value.string()) {
      quote(*text);
    } else {
      quote(orvanta::describe(value));
    }
  }
  void describe(const Dictionary& dictionary) {
    open('{');
    if (isFull()) return;
    std::vector<const Dictionary::Entry*> entries;
    entries.reserve(dictionary.size());
    for (const Dictionary::Entry& entry : dictionary) entries.push_back(&entry);
    const auto byKey = [](const auto* a, const auto* b) { return a->key() < b->key(); };
    // Sort only what can be shown, so that the work is bounded like the output.
    constexpr std::size_t kMinEntryBytes = 8;
    if (const std::size_t shown = maxBytes_ / kMinEntryBytes + 1; shown < entries.size()) {
      const auto last = entries.begin() + static_cast<std::ptrdiff_t>(shown);
      std::nth_element(entries.begin(), last, entries.end(), byKey);
      entries.erase(last, entries.end());
    }
    std::sort(entries.begin(), entries.end(), byKey);
    for (const Dictionary::Entry* entry : entries) {
      if (isFull()) return;
      indent();
      quote(entry->key());
      out_ += " = ";
      nested(entry->value);
      out_ += ";\n";
    }
    close('}');
  }

  void describe(const Array& array) {
    open('(');
    for (const Value& element : array) {
      if (isFull()) return;
      indent();
      nested(element);
      out_ += &element + 1 == array.end() ? "\n" : ",\n";
    }
    close(')');
  }

 private:
  bool isFull() const { return out_.size() > maxBytes_; }

  void nested(const Value& value) {
    if (value.dictionary() != nullptr || value.array() != nullptr) indent();
    describe(value);
  }

  void open(char bracket) {
    out_ += bracket;
    out_ += '\n';
    ++level_;
  }
  void close(char bracket) {
    --level_;
    indent();
    out_ += bracket;
  }
  void indent() { out_.append(4 * std::min(level_, kMaxIndents), ' '); }

  /// Appends a string, in quotes unless it has ASCII letters and digits only.
  void quote(std::string_view text) {
    text = text.substr(0, maxBytes_);
    if (!text.empty() && std::all_of(text.begin(), text.end(), isAlphanumeric)) {
      out_ += text;
      return;
    }
    out_ += '"';
    while (!text.empty() && !isFull()) escape(takeCharacter(text));
    out_ += '"';
  }

  void escape(char32_t c) {
    constexpr std::string_view kNamed = "\"\\\n\t\r";
    if (c >= 0x10000) {
      unit((0xD800 - (0x10000U >> 10U)) + (c >> 10U));
      unit(0xDC00 + (c & 0x3FFU));
    } else if (c > 0x7F) {
      unit(c);
    } else if (const auto named = kNamed.find(static_cast<char>(c));
               named != std::string_view::npos) {
      out_ += {'\\', "\"\\ntr"[named]};
    } else if (c < 0x20 || c == 0x7F) {
      out_ += {'\\', digit(c >> 6U), digit(c >> 3U & 7U), digit(c & 7U)};
    } else {
      out_ += static_cast<char>(c);
    }
  }

  /// Appends one UTF-16 code unit as "\\Uxxxx", the way old-style property lists escape.
  void unit(char32_t code) {
    out_ += "\\U";
    for (unsigned shift = 16; shift != 0; shift -= 4) out_ += digit(code >> (shift - 4) & 15U);
  }
  static char digit(char32_t value) { return "0123456789abcdef"[value]; }

  std::size_t maxBytes_;
  std::string out_;
  std::size_t level_ = 0;
};

}  // namespace

std::string describe(const Value& value) {
  switch (value.kind()) {
    case Kind::none:
      return "(null)";
    case Kind::null:
      return "<null>";
    case Kind::boolean:
    case Kind::integer:
    case Kind::unsignedInteger:
    case Kind::real:
    case Kind::real32:
      return value.number()->description();
    case Kind::date:
      return value.date()->description();
    case Kind::string:
      return std::string(*value.string());
    case Kind::url:
      return value.url()->description();
    case Kind::object:
      return value.object()->description();
    case Kind::classObject:
      return std::string(value.classObject()->name);
    case Kind::array:
    case Kind::dictionary:
      break;
  }
  Describer describer;
  describer.describe(value);
  return describer.take();
}

std::string describe(const Dictionary& dictionary, std::size_t maxBytes) {
  Describer describer(maxBytes);
  describer.describe(dictionary);
  return describer.take();
}

std::string formatted(std::string_view format, std::initializer_list<std::string_view> arguments) {
  std::string text;
  for (const std::string_view argument : arguments) {
    const auto place = format.find("%@");
    text.append(format.substr(0, place)).append(argument);
    format.remove_prefix(place + 2);
  }
  return text.append(format);
}

}  // namespace orvanta
