#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstring>

#include "orvanta/Foundation/Array.h"
#include "orvanta/Foundation/Dictionary.h"
#include "orvanta/Foundation/JSON.h"
#include "orvanta/Foundation/Number.h"
#include "orvanta/Foundation/internal/TextScan.h"

namespace orvanta {

namespace {

/// Writes into a buffer that is appended to the text whenever it is full. Where the next byte goes
/// is handed from function to function, which keeps it out of memory. Each leaves room for a few
/// more bytes behind what it wrote, so that punctuation needs no asking.
class JSONWriter {
 public:
  JSONWriter(std::string& out, JSONStyle style) : out_(out), style_(style) {}

  bool write(const Value& value) {
    char* end = write(value, buffer_);
    if (end != nullptr) flush(end);
    return end != nullptr;
  }

 private:
  static constexpr std::size_t kPunctuation = 16;
  static constexpr std::size_t kLongestNumber = 32;
  static constexpr std::size_t kLongestPart = 512;  // of a string, as it is read

  char* flush(char* to) {
    out_.append(buffer_, to);
    return buffer_;
  }
  /// Where that many bytes, and some punctuation, can be written.
  char* room(char* to, std::size_t bytes) {
    const auto left = static_cast<std::size_t>(std::end(buffer_) - to);
    return left < bytes + kPunctuation ? flush(to) : to;
  }
  static char* append(char* to, std::string_view few) {
    std::memcpy(to, few.data(), few.size());
    return to + few.size();
  }

  /// Answers where the value's text ends; nullptr when there is none.
  char* write(const Value& value, char* to) {
    return value.isString() ? writeString(*value.string(), to) : writeOther(value, to);
  }
  char* writeOther(const Value& value, char* to) {
    switch (value.kind()) {
      case Kind::null:
        return append(room(to, 4), "null");
      case Kind::boolean:
        return append(room(to, 5), value.number()->boolValue() ? "true" : "false");
      case Kind::integer:
        return writeNumber(value.number()->longLongValue(), to);
      case Kind::unsignedInteger:
        return writeNumber(value.number()->unsignedLongLongValue(), to);
      case Kind::real:
      case Kind::real32:
        return writeReal(value.number()->doubleValue(), to);
      case Kind::array:
        return writeContainer('[', ']', *value.array(), to, [this](const Value& element, char* at) {
          return write(element, at);
        });
      case Kind::dictionary:
        return writeContainer('{', '}', *value.dictionary(), to,
                              [this](const Dictionary::Entry& entry, char* at) {
                                at = writeString(*entry.keyValue.string(), at);
                                if (style_.pretty) *at++ = ' ';
                                *at++ = ':';
                                if (style_.pretty) *at++ = ' ';
                                return write(entry.value, at);
                              });
      default:
        return nullptr;
    }
  }

  template <class Container, class WriteItem>
  char* writeContainer(char first, char last, const Container& container, char* to,
                       WriteItem&& writeItem) {
    if (++depth_ > style_.depthLimit) return nullptr;
    to = room(to, 1);
    *to++ = first;
    bool more = false;
    for (const auto& item : container) {
      if (more) *to++ = ',';
      more = true;
      if (style_.pretty) to = breakLine(to);
      to = writeItem(item, to);
      if (to == nullptr) return nullptr;
    }
    --depth_;
    if (style_.pretty) {
      if (!more) *to++ = '\n';  // an empty container holds an empty line
      to = breakLine(to);
    }
    to = room(to, 1);
    *to++ = last;
    return to;
  }

  char* breakLine(char* to) {
    *to++ = '\n';
    for (std::size_t i = 0; i < std::min(depth_, kMaxIndents); ++i) to = append(room(to, 2), "  ");
    return to;
  }

  template <class T>
  char* writeNumber(T number, char* to) {
    to = room(to, kLongestNumber);
    return std::to_chars(to, to + kLongestNumber, number).ptr;
  }

  char* writeReal(double number, char* to) {
    if (!std::isfinite(number)) return nullptr;
    if (number == 0.0 && std::signbit(number)) return append(room(to, 4), "-0.0");
    constexpr double kNotGiven = 0x1p63;  // what an amount is that nobody gave
    if (number == kNotGiven) return append(room(to, 19), "9223372036854775808");
    to = room(to, kLongestNumber);
    char* const end = writeAmount(number, to);
    return end != nullptr ? end : writeNumber(number, to);
  }

  /// The same text as writeNumber's, faster, for most amounts of money and times: no more than
  /// three decimals, and few enough digits that no other number of so few is the same double. A
  /// whole number with many zeros has a shorter text with an exponent; nullptr for it, as for
  /// everything else.
  static char* writeAmount(double number, char* to) {
    constexpr double kLimit = 1e12;
    if (!(number >= 0.0 && number < kLimit)) return nullptr;
    // NOLINTNEXTLINE(bugprone-incorrect-roundings): what is rounded wrongly is found out
    const auto thousandths = static_cast<std::int64_t>(number * 1000 + 0.5);
    if (static_cast<double>(thousandths) / 1000 != number) return nullptr;
    const auto whole = static_cast<std::uint64_t>(thousandths) / 1000;
    const auto rest = static_cast<unsigned>(thousandths % 1000);
    if (rest == 0 && whole != 0 && whole % 100'000 == 0) return nullptr;
    to = std::to_chars(to, to + kLongestNumber, whole).ptr;
    if (rest == 0) return to;
    const auto digit = [](unsigned value) { return static_cast<char>('0' + value % 10); };
    to[0] = '.';
    to[1] = digit(rest / 100);
    to[2] = digit(rest / 10);
    to[3] = digit(rest);
    return to + (rest % 10 != 0 ? 4 : rest % 100 != 0 ? 3 : 2);
  }

  char* writeString(std::string_view text, char* to) {
    if (text.size() > kLongestPart) return writeLongString(text, to);
    to = room(to, text.size() + 10);  // the quotes, and what is copied too much
    *to++ = '"';
    to = copyPlain(text, to) ? to + text.size() : writeEscaped(text, to);
    *to++ = '"';
    return to;
  }

  [[gnu::noinline]] char* writeLongString(std::string_view text, char* to) {
    *to++ = '"';
    for (; !text.empty(); text.remove_prefix(std::min(text.size(), kLongestPart))) {
      to = writeEscaped(text.substr(0, kLongestPart), to);
    }
    *to++ = '"';
    return to;
  }

  /// Copies the text of a value, unless there is something in it that cannot stand for itself.
  /// Writes up to eight bytes behind its end.
  static bool copyPlain(std::string_view text, char* to) {
    const std::size_t size = text.size();
    const char* from = text.data();
    std::uint64_t relevant = ~std::uint64_t{0};
    if (size < 8) {
      relevant = ~(relevant << (8 * size));
    } else {
      const char* const last = from + size - 8;
      for (; from < last; from += 8, to += 8) {
        const auto eight = loadAs<std::uint64_t>(from);
        if (specialsOfEight<'/', false>(eight) != 0) return false;
        std::memcpy(to, &eight, 8);
      }
      to -= from - last;  // some for the second time
      from = last;
    }
    const auto eight = loadAs<std::uint64_t>(from);
    std::memcpy(to, &eight, 8);
    return (specialsOfEight<'/', false>(eight) & relevant) == 0;
  }

  [[gnu::noinline]] char* writeEscaped(std::string_view part, char* to) {
    constexpr std::size_t kLongestEscape = 6;
    const char* from = part.data();
    const char* const end = from + part.size();
    while (from != end) {
      to = room(to, kLongestEscape + 8);
      if (end - from >= 8) {
        std::memcpy(to, from, 8);
        const std::size_t plain = firstSpecialOfEight<'/', false>(from);
        from += plain;
        to += plain;
        if (plain == 8) continue;
      }
      const auto byte = static_cast<unsigned char>(*from++);
      if (kEscapes[byte] == 0 || (byte == '/' && !style_.escapeSlashes)) {
        *to++ = static_cast<char>(byte);
      } else {
        to = writeEscape(byte, to);
      }
    }
    return to;
  }

  /// With what a byte that cannot stand for itself is written behind a backslash: a character, or 1
  /// for "u00" and two digits.
  static constexpr std::array<char, 256> kEscapes = [] {
    std::array<char, 256> escapes{};
    for (std::size_t i = 0; i < 0x20; ++i) escapes[i] = 1;
    for (const char c : {'"', '\\', '/'}) escapes[static_cast<unsigned char>(c)] = c;
    escapes['\b'] = 'b';
    escapes['\f'] = 'f';
    escapes['\n'] = 'n';
    escapes['\r'] = 'r';
    escapes['\t'] = 't';
    return escapes;
  }();

  static char* writeEscape(unsigned char byte, char* to) {
    constexpr std::string_view kDigits = "0123456789abcdef";
    *to++ = '\\';
    const char escape = kEscapes[byte];
    if (escape != 1) {
      *to++ = escape;
      return to;
    }
    to = append(to, "u00");
    *to++ = kDigits[byte >> 4U];
    *to++ = kDigits[byte & 15U];
    return to;
  }

  std::string& out_;
  JSONStyle style_;
  std::size_t depth_ = 0;
  char buffer_[2 * kLongestPart];
};

bool isWritable(const Value& value, std::size_t depthLeft) {
  switch (value.kind()) {
    case Kind::null:
    case Kind::boolean:
    case Kind::integer:
    case Kind::unsignedInteger:
    case Kind::string:
      return true;
    case Kind::real:
    case Kind::real32:
      return std::isfinite(value.number()->doubleValue());
    case Kind::array:
      return depthLeft > 0 &&
             std::all_of(value.array()->begin(), value.array()->end(),
                         [&](const Value& element) { return isWritable(element, depthLeft - 1); });
    case Kind::dictionary:
      return depthLeft > 0 && std::all_of(value.dictionary()->begin(), value.dictionary()->end(),
                                          [&](const Dictionary::Entry& entry) {
                                            return isWritable(entry.value, depthLeft - 1);
                                          });
    default:
      return false;
  }
}

}  // namespace

bool writeJSON(const Value& value, std::string& out, JSONStyle style) {
  return JSONWriter(out, style).write(value);
}

bool isValidJSONObject(const Value& value) {
  return (value.array() != nullptr || value.dictionary() != nullptr) &&
         isWritable(value, kJSONDepthLimit);
}

}  // namespace orvanta
