#include "orvanta/Linux/HostBundle.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string_view>

#include "orvanta/Foundation/CharacterSet.h"

namespace orvanta {

namespace {

/// The length of the character at the front of a text that is not empty, 0 when it is not UTF-8.
std::size_t characterLength(std::string_view text) {
  const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
  const unsigned lead = byte(0);
  if (lead < 0x80) return 1;
  const std::size_t length = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
  if (lead < 0xC2 || lead > 0xF4 || text.size() < length) return 0;
  for (std::size_t i = 1; i < length; ++i) {
    if ((byte(i) & 0xC0U) != 0x80) return 0;
  }
  const unsigned second = byte(1);
  const bool isOverlong = (lead == 0xE0 && second < 0xA0) || (lead == 0xF0 && second < 0x90);
  const bool isSurrogate = lead == 0xED && second > 0x9F;
  const bool isBeyond = lead == 0xF4 && second > 0x8F;
  return isOverlong || isSurrogate || isBeyond ? 0 : length;
}

void appendUTF8(std::string& text, char32_t c) {
  const auto append = [&](char32_t byte) { text += static_cast<char>(byte); };
  const auto trail = [&](unsigned shift) { append(0x80U | (c >> shift & 0x3FU)); };
  if (c < 0x80) {
    append(c);
  } else if (c < 0x800) {
    append(0xC0U | c >> 6U);
    trail(0);
  } else if (c < 0x10000) {
    append(0xE0U | c >> 12U);
    trail(6);
    trail(0);
  } else {
    append(0xF0U | c >> 18U);
    trail(12);
    trail(6);
    trail(0);
  }
}

class StringsReader {
 public:
  StringsReader(std::string file, std::string_view text)
      : file_(std::move(file)), text_(text), rest_(text) {}

  std::map<std::string, std::string, std::less<>> read() {
    checkEncoding();
    skip("\xEF\xBB\xBF");
    std::map<std::string, std::string, std::less<>> texts;
    for (skipSpace(); !rest_.empty(); skipSpace()) {
      std::string key = word("a key");
      expect('=');
      skipSpace();
      std::string value = word("a text");
      expect(';');
      texts.emplace(std::move(key), std::move(value));
    }
    return texts;
  }

 private:
  [[noreturn]] void fail(const std::string& what) const {
    const std::string_view passed = text_.substr(0, text_.size() - rest_.size());
    const auto line = 1 + std::count(passed.begin(), passed.end(), '\n');
    throw std::runtime_error(file_ + ":" + std::to_string(line) + ": " + what);
  }

  void checkEncoding() {
    while (!rest_.empty()) {
      const std::size_t length = characterLength(rest_);
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

  /// What stands behind an opening quote, up to the closing one.
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

HostBundle::HostBundle(const std::filesystem::path& resources) {
  if (resources.empty()) return;
  const std::filesystem::path file = resources / "Localizable.strings";
  std::error_code error;
  const auto status = std::filesystem::status(file, error);
  if (status.type() == std::filesystem::file_type::not_found) return;

  std::ifstream in;
  if (status.type() == std::filesystem::file_type::regular) in.open(file, std::ios::binary);
  if (!in.is_open()) throw std::runtime_error(file.string() + ": cannot be read");
  const std::string text{std::istreambuf_iterator<char>(in), {}};
  texts_ = StringsReader(file.string(), text).read();
}

std::string HostBundle::localizedStringForKey(std::string_view key) {
  const auto found = texts_.find(key);
  return found == texts_.end() ? std::string(key) : found->second;
}

}  // namespace orvanta
