#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "orvanta/Foundation/Value.h"

namespace orvanta {

/// Containers may be nested this deep, in reading and in writing.
inline constexpr std::size_t kJSONDepthLimit = 512;

/// Line and column of a byte in a string, from 1. Columns count characters, not bytes.
struct TextPosition {
  std::size_t line = 1;
  std::size_t column = 1;
  static TextPosition of(std::size_t offset, std::string_view string);
};

/// Why a string is not JSON, and where.
struct JSONError {
  std::string_view reason;
  std::size_t offset = 0;  // in bytes
};

/// Parses JSON text, strictly by RFC 8259; a byte-order mark is accepted. Dictionaries keep the
/// order of the text; a duplicate key keeps its first place and its last value. Returns nil and
/// sets `error` if the text is not JSON. All nodes are allocated from one arena, which any part of
/// the result keeps alive.
///
///     JSONError error;
///     const Value payload = parseJSON(text, &error);
///     if (payload.isNil()) {
///       const auto [line, column] = TextPosition::of(error.offset, text);
///       …
///     }
///     std::string written;
///     if (!writeJSON(payload, written, {.pretty = true})) …
Value parseJSON(std::string_view text, JSONError* error = nullptr);

/// A key that occurs earlier in the same dictionary. Offsets are in bytes.
struct DuplicateKey {
  std::string key;
  std::size_t firstOffset;
  std::size_t offset;
};
/// Returns the duplicate keys of JSON text, up to its end or its first error.
std::vector<DuplicateKey> findDuplicateKeys(std::string_view text);

/// Levels of indentation in readable output. Without a limit the output of a deep and wide value
/// would be a thousand times its size.
inline constexpr std::size_t kMaxIndents = 32;

struct JSONStyle {
  /// Two spaces a level (up to kMaxIndents levels), one entry a line, " : " after a key.
  bool pretty = false;
  /// Writes "/" as "\/".
  bool escapeSlashes = true;
  std::size_t depthLimit = kJSONDepthLimit;
};

/// Appends a value as JSON text. Numbers are written in the shortest form that parses to the same
/// number; a float is widened to a double first. Returns false if the value contains anything but
/// null, finite numbers, strings, arrays and dictionaries, or is nested too deep; part of the text
/// is appended then.
bool writeJSON(const Value& value, std::string& out, JSONStyle style = {});

/// Returns whether the value is an array or a dictionary that writeJSON accepts.
bool isValidJSONObject(const Value& value);

}  // namespace orvanta
