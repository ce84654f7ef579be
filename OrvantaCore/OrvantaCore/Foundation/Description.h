#pragma once

#include <string>

#include "orvanta/Foundation/Value.h"

namespace orvanta {

/// Returns what "%@" prints for a value: "(null)" for nil, "<null>", 1 and 0 for booleans, a string
/// unchanged, an object's own description, and a collection as an old-style property list with
/// sorted keys:
///
///     {
///         alert =     {
///             title = "Hello!";
///         };
///     }
///
/// Indentation ends at kMaxIndents levels.
std::string describe(const Value& value);
/// The same, truncated to `maxBytes` and marked with " …"; the work is bounded by `maxBytes`.
std::string describe(const Dictionary& dictionary, std::size_t maxBytes);

/// Replaces each "%@" in a format by the next of the arguments, of which there are as many.
std::string formatted(std::string_view format, std::initializer_list<std::string_view> arguments);

}  // namespace orvanta
