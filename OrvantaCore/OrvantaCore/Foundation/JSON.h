#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "orvanta/Foundation/Value.h"

namespace orvanta {

/// Containers nested deeper than this are refused, in reading and in writing.
inline constexpr std::size_t kJSONDepthLimit = 512;

/// Line and column of a byte of a text, both from 1; columns count characters, not bytes.
struct TextPosition {
  std::size_t line = 1;
  std::size_t column = 1;
  static TextPosition of(std::size_t offset, std::string_view text);
};

/// Why and where (offset in bytes) a text is no JSON.
struct JSONError {
  std::string_view reason;
  std::size_t offset = 0;
};

/// Builds the value of a JSON text: dictionaries keep the text's order, and of a key that stands
/// twice the last value wins at the first one's place. Nil when the text is no JSON; `error`, when
/// given, then tells why. Everything is carved from one arena that any part of the result keeps.
Value parseJSON(std::string_view text, JSONError* error = nullptr);

/// A key that its dictionary has had before.
struct DuplicateKey {
  std::string key;
  std::size_t firstOffset;
  std::size_t offset;
};
/// The keys that stand twice in the same dictionary of a text, up to its end or first error.
std::vector<DuplicateKey> findDuplicateKeys(std::string_view text);

/// Text for people is indented no deeper than this: a deep and wide value would otherwise become a
/// thousand times its size.
inline constexpr std::size_t kMaxIndents = 32;

struct JSONStyle {
  /// Two spaces a level (no more than kMaxIndents levels), one entry a line, " : " behind a key.
  bool pretty = false;
  /// "/" is written "\/".
  bool escapeSlashes = true;
  std::size_t depthLimit = kJSONDepthLimit;
};

/// Appends the text of a value: only null, numbers, texts, arrays and dictionaries, finite numbers,
/// nested no deeper than the
/// limit. Numbers get the shortest text that reads back as the same number;
/// a float is widened first. False, with part of the text appended, for anything else.
bool writeJSON(const Value& value, std::string& out, JSONStyle style = {});

/// Whether a text can be made of the value: an array or a dictionary that writeJSON takes.
bool isValidJSONObject(const Value& value);

}  // namespace orvanta
