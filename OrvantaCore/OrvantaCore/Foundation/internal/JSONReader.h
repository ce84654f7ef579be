#pragma once

#include <charconv>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <string>
#include <string_view>

#include "orvanta/Foundation/JSON.h"
#include "orvanta/Foundation/Number.h"
#include "orvanta/Foundation/RealText.h"
#include "orvanta/Foundation/internal/TextScan.h"
#include "orvanta/Foundation/internal/UTF8.h"

namespace orvanta {

/// Parses JSON text, strictly by RFC 8259 (a byte-order mark is accepted), and reports its tokens
/// to a client, any class with
///
///     void beginDictionary(offset);          void endDictionary(offset);
///     void beginArray(offset);               void endArray(offset);
///     void key(string, offset);              void string(string, offset);
///     void integer(int64, offset);           void unsignedInteger(uint64, offset);
///     void real(double, offset);             void boolean(flag, offset);
///     void null(offset);
///
/// An offset is that of the token's first byte. A string is valid UTF-8 and lives until the call
/// returns. Integers outside the signed 64-bit range are reported as unsigned, and outside that
/// range as doubles; "-0" is a double. Duplicate keys are reported like others. The parser does not
/// recurse; the depth is limited because freeing and writing the result do.
template <class Client>
class JSONReader {
 public:
  JSONReader(std::string_view text, Client& client)
      : client_(client), start_(text.data()), at_(text.data()), end_(text.data() + text.size()) {}

  /// Parses the whole text. Returns false and sets error() if it is not JSON; the tokens before the
  /// error have been reported then.
  bool read();
  const JSONError& error() const { return error_; }

 private:
  bool fail(std::string_view reason, const char* where) {
    error_ = {reason, static_cast<std::size_t>(where - start_)};
    return false;
  }
  std::size_t offset(const char* where) const { return static_cast<std::size_t>(where - start_); }
  void skipSpace() {
    while (at_ != end_ && static_cast<unsigned char>(*at_) <= ' ' &&
           (*at_ == ' ' || *at_ == '\n' || *at_ == '\r' || *at_ == '\t')) {
      ++at_;
    }
  }
  bool atEnd() const { return at_ == end_; }

  /// Reads a scalar or an empty container, or opens a container that is not empty.
  bool readValue(bool& opened);
  bool closeContainer();
  bool readKey();
  bool readScalar();
  bool readWord(std::string_view word);
  bool readNumber();
  bool readReal(const char* first);
  /// Reads the string whose quote is at at_ into slice_.
  bool readString();
  /// The same for a string that needs no unescaping before `checked`.
  bool readStringFrom(const char* checked);
  bool readEscape();
  bool readHex(std::uint32_t& unit);
  /// Skips characters that are not escaped; fails if they are not UTF-8.
  bool skipPlain();
  bool skipMultibyte();

  Client& client_;
  const char* start_;
  const char* at_;
  const char* end_;
  JSONError error_;
  std::string_view slice_;
  std::string unescaped_;
  std::size_t depth_ = 0;
  bool isDictionary_[kJSONDepthLimit] = {};
};

template <class Client>
bool JSONReader<Client>::read() {
  if (std::string_view(at_, static_cast<std::size_t>(end_ - at_)).starts_with("\xEF\xBB\xBF")) {
    at_ += 3;
  }
  skipSpace();
  for (bool keyFirst = false;;) {
    if (keyFirst && !readKey()) return false;
    bool opened = false;
    if (!readValue(opened)) return false;
    if (opened) {
      keyFirst = isDictionary_[depth_ - 1];
      continue;
    }
    // A value has ended; close the containers that end with it.
    for (;;) {
      skipSpace();
      if (depth_ == 0) return atEnd() || fail("text after the value", at_);
      if (atEnd()) return fail("the text ends inside a container", at_);
      if (*at_ == ',') break;
      if (!closeContainer()) return false;
    }
    ++at_;
    skipSpace();
    keyFirst = isDictionary_[depth_ - 1];
  }
}

template <class Client>
bool JSONReader<Client>::readValue(bool& opened) {
  if (atEnd()) return fail("the text ends where a value should stand", at_);
  const char first = *at_;
  if (first != '{' && first != '[') return readScalar();
  if (depth_ == kJSONDepthLimit) return fail("more than 512 nested containers", at_);
  const bool dictionary = first == '{';
  dictionary ? client_.beginDictionary(offset(at_)) : client_.beginArray(offset(at_));
  isDictionary_[depth_++] = dictionary;
  ++at_;
  skipSpace();
  opened = atEnd() || *at_ != (dictionary ? '}' : ']');
  return opened || closeContainer();
}

template <class Client>
bool JSONReader<Client>::closeContainer() {
  const bool dictionary = isDictionary_[depth_ - 1];
  if (*at_ != (dictionary ? '}' : ']')) {
    return fail(dictionary ? "expected ',' or '}'" : "expected ',' or ']'", at_);
  }
  dictionary ? client_.endDictionary(offset(at_)) : client_.endArray(offset(at_));
  ++at_;
  --depth_;
  return true;
}

template <class Client>
bool JSONReader<Client>::readKey() {
  if (atEnd() || *at_ != '"') return fail("expected a key in quotes", at_);
  const char* first = at_;
  if (!readString()) return false;
  client_.key(slice_, offset(first));
  skipSpace();
  if (atEnd() || *at_ != ':') return fail("expected ':' after a key", at_);
  ++at_;
  skipSpace();
  return true;
}

template <class Client>
bool JSONReader<Client>::readScalar() {
  const char* first = at_;
  switch (*first) {
    case '"':
      if (!readString()) return false;
      client_.string(slice_, offset(first));
      return true;
    case 't':
      if (!readWord("true")) return false;
      client_.boolean(true, offset(first));
      return true;
    case 'f':
      if (!readWord("false")) return false;
      client_.boolean(false, offset(first));
      return true;
    case 'n':
      if (!readWord("null")) return false;
      client_.null(offset(first));
      return true;
    default:
      return readNumber();
  }
}

template <class Client>
bool JSONReader<Client>::readWord(std::string_view word) {
  if (!std::string_view(at_, static_cast<std::size_t>(end_ - at_)).starts_with(word)) {
    return fail("expected a value", at_);
  }
  at_ += word.size();
  return true;
}

template <class Client>
bool JSONReader<Client>::readNumber() {
  const auto isDigit = [](char c) { return c >= '0' && c <= '9'; };
  const char* const first = at_;
  const char* const end = end_;
  // Numbers of one digit are the most frequent ones.
  if (end - first > 1 && isDigit(*first) && (first[1] == ',' || first[1] == '}')) {
    at_ = first + 1;
    client_.integer(*first - '0', offset(first));
    return true;
  }
  const char* at = first;
  const bool negative = *at == '-';
  if (negative) ++at;
  if (at == end || !isDigit(*at))
    return fail(negative ? "expected a digit" : "expected a value", at);
  const char* const digits = at;
  std::uint64_t magnitude = 0;
  bool fits = true;
  for (; at != end && isDigit(*at); ++at) {
    const auto digit = static_cast<std::uint64_t>(*at - '0');
    if (at - digits >= 19 && magnitude > (std::numeric_limits<std::uint64_t>::max() - digit) / 10) {
      fits = false;
    }
    magnitude = magnitude * 10 + digit;
  }
  if (*digits == '0' && at - digits > 1) return fail("a number with a leading zero", first);
  bool fraction = false;
  if (at != end && *at == '.') {
    fraction = true;
    ++at;
    if (at == end || !isDigit(*at)) return fail("expected a digit", at);
    while (at != end && isDigit(*at)) ++at;
  }
  if (at != end && (*at == 'e' || *at == 'E')) {
    fraction = true;
    ++at;
    if (at != end && (*at == '+' || *at == '-')) ++at;
    if (at == end || !isDigit(*at)) return fail("expected a digit", at);
    while (at != end && isDigit(*at)) ++at;
  }
  at_ = at;
  constexpr std::uint64_t kSignedLimit = std::uint64_t{1} << 63U;
  if (fraction || !fits || (negative && (magnitude > kSignedLimit || magnitude == 0))) {
    return readReal(first);
  }
  if (negative || magnitude < kSignedLimit) {
    client_.integer(static_cast<std::int64_t>(negative ? 0 - magnitude : magnitude), offset(first));
  } else {
    client_.unsignedInteger(magnitude, offset(first));
  }
  return true;
}

template <class Client>
bool JSONReader<Client>::readReal(const char* first) {
  double value = 0.0;
  const std::string_view text(first, static_cast<std::size_t>(at_ - first));
  if (!parseReal(text, value)) {
    value = realReading(text);  // 0 if too small
    if (std::isinf(value)) return fail("a number beyond the range of a double", first);
  }
  client_.real(value, offset(first));
  return true;
}

template <class Client>
bool JSONReader<Client>::readString() {
  // Most strings are plain ASCII: they stay in the text, and slice_ refers to them there.
  const char* const first = at_ + 1;
  const char* next = first;
  while (end_ - next >= 8) {
    const std::size_t plain = firstSpecialOfEight<0, true>(next);
    next += plain;
    if (plain == 8) continue;
    if (*next != '"') break;
    slice_ = {first, static_cast<std::size_t>(next - first)};
    at_ = next + 1;
    return true;
  }
  return readStringFrom(next);
}

template <class Client>
bool JSONReader<Client>::readStringFrom(const char* checked) {
  const char* quote = at_;
  const char* plain = quote + 1;
  at_ = checked;
  if (!skipPlain()) return false;
  if (!atEnd() && *at_ == '"') {
    slice_ = {plain, static_cast<std::size_t>(at_ - plain)};
    ++at_;
    return true;
  }
  unescaped_.assign(plain, at_);
  while (!atEnd() && *at_ == '\\') {
    if (!readEscape()) return false;
    plain = at_;
    if (!skipPlain()) return false;
    unescaped_.append(plain, at_);
  }
  if (atEnd()) return fail("a string without its closing quote", quote);
  slice_ = unescaped_;
  ++at_;
  return true;
}

template <class Client>
bool JSONReader<Client>::skipPlain() {
  for (;;) {
    while (end_ - at_ >= 8) {
      const std::size_t plain = firstSpecialOfEight<0, true>(at_);
      at_ += plain;
      if (plain != 8) break;
    }
    if (atEnd()) return true;
    const auto byte = static_cast<unsigned char>(*at_);
    if (byte == '"' || byte == '\\') return true;
    if (byte < 0x20) return fail("a control character in a string", at_);
    if (byte < 0x80) {
      ++at_;
    } else if (!skipMultibyte()) {
      return false;
    }
  }
}

template <class Client>
bool JSONReader<Client>::skipMultibyte() {
  const std::size_t length = utf8CharacterLength({at_, static_cast<std::size_t>(end_ - at_)});
  if (length == 0) return fail("text that is not UTF-8", at_);
  at_ += length;
  return true;
}

template <class Client>
bool JSONReader<Client>::readEscape() {
  const char* backslash = at_++;
  if (atEnd()) return fail("the text ends inside an escape", backslash);
  const char kind = *at_++;
  switch (kind) {
    case '"':
    case '\\':
    case '/':
      unescaped_ += kind;
      return true;
    case 'b':
      unescaped_ += '\b';
      return true;
    case 'f':
      unescaped_ += '\f';
      return true;
    case 'n':
      unescaped_ += '\n';
      return true;
    case 'r':
      unescaped_ += '\r';
      return true;
    case 't':
      unescaped_ += '\t';
      return true;
    case 'u':
      break;
    default:
      return fail("an unknown escape", backslash);
  }
  std::uint32_t code = 0;
  if (!readHex(code)) return fail("expected four hex digits after \\u", backslash);
  if (code >= 0xD800 && code <= 0xDFFF) {
    std::uint32_t low = 0;
    const bool paired = code < 0xDC00 && end_ - at_ >= 2 && at_[0] == '\\' && at_[1] == 'u' &&
                        (at_ += 2, readHex(low)) && low >= 0xDC00 && low <= 0xDFFF;
    if (!paired) return fail("half of a surrogate pair", backslash);
    code = 0x10000 + ((code - 0xD800) << 10U) + (low - 0xDC00);
  }
  appendUTF8(unescaped_, code);
  return true;
}

template <class Client>
bool JSONReader<Client>::readHex(std::uint32_t& unit) {
  if (end_ - at_ < 4) return false;
  const auto result = std::from_chars(at_, at_ + 4, unit, 16);
  if (result.ptr != at_ + 4) return false;
  at_ += 4;
  return true;
}

}  // namespace orvanta
