#include "orvanta/Simulator/StringsFile.h"

#include <algorithm>
#include <stdexcept>

#include "orvanta/Foundation/CharacterSet.h"
#include "orvanta/Foundation/internal/UTF8.h"

namespace orvanta {

namespace {

class StringsReader {
 public:
  StringsReader(std::string file, std::string_view text)
      : file_(std::move(file)), text_(text), rest_(text) {}

  StringsTable read() {
    checkEncoding();
    skip("\xEF\xBB\xBF");
    StringsTable strings;
    for (skipSpace(); !rest_.empty(); skipSpace()) {
      std::string key = word("a key");
      expect('=');
      skipSpace();
      std::string value = word("a text");
      expect(';');
      strings.emplace(std::move(key), std::move(value));
    }
    return strings;
  }

 private:
  [[noreturn]] void fail(const std::string& what) const {
    const std::string_view passed = text_.substr(0, text_.size() - rest_.size());
    const auto line = 1 + std::count(passed.begin(), passed.end(), '\n');
    throw std::runtime_error(file_ + ":" + std::to_string(line) + ": " + what);
  }

  void checkEncoding() {
    while (!rest_.empty()) {
      const std::size_t length = utf8CharacterLength(rest_);
      if (length == 0) fail("not UTF-8");
      rest_.remove_prefix(length);
    }
    rest_ = text_;
  }

  bool skip(std::string_view expected) {
    if (!rest_.starts_with(expected)) return false;
    rest_.remove_prefix(expected.size());
    return true;
  }

  void skipSpace() {
    for (;;) {
      rest_.remove_prefix(std::min(rest_.find_first_not_of(" \t\r\n\f\v"), rest_.size()));
      if (rest_.starts_with("//")) {
        rest_.remove_prefix(std::min(rest_.find('\n'), rest_.size()));
      } else if (rest_.starts_with("/*")) {
        const auto end = rest_.find("*/", 2);
        if (end == std::string_view::npos) fail("a comment without end");
        rest_.remove_prefix(end + 2);
      } else {
        return;
      }
    }
  }

  void expect(char character) {
    skipSpace();
    if (!skip({&character, 1})) fail(std::string("expected \"") + character + "\"");
  }

  std::string word(const char* what) {
    if (skip("\"")) return quoted();
    constexpr CharacterSet kBare = CharacterSet::alphanumerics().with("_.-");
    const auto end =
        std::find_if(rest_.begin(), rest_.end(), [&](char c) { return !kBare.contains(c); });
    std::string bare(rest_.begin(), end);
    if (bare.empty()) fail(std::string("expected ") + what);
    rest_.remove_prefix(bare.size());
    return bare;
  }

  /// Reads from after an opening quote to after the closing one.
  std::string quoted() {
    const std::string_view opening = rest_;
    std::string text;
    for (;;) {
      const auto plain = rest_.find_first_of("\"\\");
      if (plain == std::string_view::npos) {
        rest_ = opening;
        fail("a text without closing quote");
      }
      text.append(rest_.substr(0, plain));
      rest_.remove_prefix(plain);
      if (skip("\"")) return text;
      escape(text);
    }
  }

  void escape(std::string& text) {
    constexpr std::string_view kLetters = "\"\\'ntr";
    constexpr std::string_view kMeanings = "\"\\'\n\t\r";
    if (rest_.starts_with("\\U")) return appendUTF8(text, unicode());
    const auto letter = rest_.size() < 2 ? std::string_view::npos : kLetters.find(rest_[1]);
    if (letter == std::string_view::npos) fail("an unknown escape");
    text += kMeanings[letter];
    rest_.remove_prefix(2);
  }

  char32_t unicode() {
    const char32_t first = unit();
    if (first < 0xD800 || first > 0xDFFF) return first;
    const char32_t second = first < 0xDC00 && rest_.starts_with("\\U") ? unit() : 0;
    if (second < 0xDC00 || second > 0xDFFF) fail("half a surrogate pair");
    return 0x10000 + ((first - 0xD800) << 10U) + (second - 0xDC00);
  }

  char32_t unit() {
    constexpr std::string_view kDigits = "0123456789abcdefABCDEF";
    char32_t code = 0;
    for (std::size_t i = 2; i < 6; ++i) {
      const auto digit = i < rest_.size() ? kDigits.find(rest_[i]) : std::string_view::npos;
      if (digit == std::string_view::npos) fail("\\U without four hex digits");
      code = code << 4U | static_cast<char32_t>(digit < 16 ? digit : digit - 6);
    }
    rest_.remove_prefix(6);
    return code;
  }

  std::string file_;
  std::string_view text_;
  std::string_view rest_;
};

}  // namespace

StringsTable parseStrings(std::string_view strings, const std::string& fileName) {
  return StringsReader(fileName, strings).read();
}

std::string SimulatedBundle::localizedStringForKey(std::string_view key) {
  const auto entry = strings_.find(key);
  return entry == strings_.end() ? std::string(key) : entry->second;
}

}  // namespace orvanta
