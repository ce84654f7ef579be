#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <concepts>
#include <cstring>

#include "orvanta/Foundation/Array.h"
#include "orvanta/Foundation/Dictionary.h"
#include "orvanta/Foundation/JSON.h"
#include "orvanta/Foundation/Number.h"
#include "orvanta/Foundation/RealText.h"
#include "orvanta/Foundation/internal/TextScan.h"

namespace orvanta {

namespace {

/// Writes to a buffer on the stack and appends it to the output whenever it is full. The position
/// is passed from function to function as `to`, since a member would be loaded and stored for every
/// byte. Every function leaves kPunctuation bytes free after its output, so that brackets, commas
/// and colons are written without a check.
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
  static constexpr std::size_t kMaxNumber = kMaxRealText;  // an integer is shorter
  static constexpr std::size_t kMaxPart = 512;  // bytes of a string that are written at a time

  char* flush(char* to) {
    out_.append(buffer_, to);
    return buffer_;
  }
  /// Returns a position with room for `bytes` and punctuation.
  char* room(char* to, std::size_t bytes) {
    const auto left = static_cast<std::size_t>(std::end(buffer_) - to);
    return left < bytes + kPunctuation ? flush(to) : to;
  }
  static char* append(char* to, std::string_view string) {
    std::memcpy(to, string.data(), string.size());
    return to + string.size();
  }

  /// Returns the end of the output, or nullptr if the value cannot be written. Strings come first:
  /// most values are strings.
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
        return writeInteger(value.number()->longLongValue(), to);
      case Kind::unsignedInteger:
        return writeInteger(value.number()->unsignedLongLongValue(), to);
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
      if (!more) *to++ = '\n';  // the platform writes an empty line into an empty container
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

  char* writeInteger(std::integral auto number, char* to) {
    to = room(to, kMaxNumber);
    return std::to_chars(to, to + kMaxNumber, number).ptr;
  }

  char* writeReal(double number, char* to) {
    if (!std::isfinite(number)) return nullptr;
    if (number == 0.0 && std::signbit(number)) return append(room(to, 4), "-0.0");
    // An amount that is not set is kUnsetInteger as a double; printReal would take longer for it.
    constexpr double kUnset = 0x1p63;
    if (number == kUnset) return append(room(to, 19), "9223372036854775808");
    to = room(to, kMaxNumber);
    char* const end = writeAmount(number, to);
    return end != nullptr ? end : printReal(number, to);
  }

  /// Writes most amounts of money and times: numbers below 10^12 with at most three decimals. The
  /// output is that of printReal, the shortest that parses to the same double, because such a
  /// number has at most 15 digits and no other number of 15 digits is the same double. Returns
  /// nullptr for every other number, including whole ones with five zeros at the end, which are
  /// shorter with an exponent.
  static char* writeAmount(double number, char* to) {
    constexpr double kLimit = 1e12;
    if (!(number >= 0.0 && number < kLimit)) return nullptr;
    // NOLINTNEXTLINE(bugprone-incorrect-roundings): the next line finds a wrong rounding
    const auto thousandths = static_cast<std::int64_t>(number * 1000 + 0.5);
    if (static_cast<double>(thousandths) / 1000 != number) return nullptr;
    const std::uint64_t whole = static_cast<std::uint64_t>(thousandths) / 1000;
    const auto rest = static_cast<unsigned>(thousandths % 1000);
    if (rest == 0 && whole != 0 && whole % 100'000 == 0) return nullptr;
    to = std::to_chars(to, to + kMaxNumber, whole).ptr;
    if (rest == 0) return to;
    const auto digit = [](unsigned value) { return static_cast<char>('0' + value % 10); };
    to[0] = '.';
    to[1] = digit(rest / 100);
    to[2] = digit(rest / 10);
    to[3] = digit(rest);
    return to + (rest % 10 != 0 ? 4 : rest % 100 != 0 ? 3 : 2);
  }

  char* writeString(std::string_view text, char* to) {
    if (text.size() > kMaxPart) return writeLongString(text, to);
    to = room(to, text.size() + 10);  // two quotes and the eight bytes that copyPlain may exceed
    *to++ = '"';
    to = copyPlain(text, to) ? to + text.size() : writeEscaped(text, to);
    *to++ = '"';
    return to;
  }

  [[gnu::noinline]] char* writeLongString(std::string_view text, char* to) {
    *to++ = '"';
    for (; !text.empty(); text.remove_prefix(std::min(text.size(), kMaxPart))) {
      to = writeEscaped(text.substr(0, kMaxPart), to);
    }
    *to++ = '"';
    return to;
  }

  /// Copies a string that needs no escapes; returns false if it needs one. Eight bytes are tested
  /// and copied at a time, of a short string with bytes after its end, which Value guarantees to be
  /// readable. Writes up to eight bytes after the end of the copy.
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
      to -= from - last;  // the last eight overlap those before
      from = last;
    }
    const auto eight = loadAs<std::uint64_t>(from);
    std::memcpy(to, &eight, 8);
    return (specialsOfEight<'/', false>(eight) & relevant) == 0;
  }

  [[gnu::noinline]] char* writeEscaped(std::string_view part, char* to) {
    constexpr std::size_t kMaxEscape = 6;
    const char* from = part.data();
    const char* const end = from + part.size();
    while (from != end) {
      to = room(to, kMaxEscape + 8);
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

  /// For each byte that is escaped the character after the backslash, or 1 for "u00" and two
  /// digits; 0 for all others.
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
  char buffer_[2 * kMaxPart];
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
