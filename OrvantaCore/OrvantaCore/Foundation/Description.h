#pragma once

#include <string>

#include "orvanta/Foundation/Value.h"

namespace orvanta {

/// What "%@" prints of a value: "(null)" for nil, "<null>", booleans 1 and 0, a text as it stands,
/// an object's own description, and collections as old-style property lists with sorted keys:
///
///     {
///         alert =     {
///             title = "Hello!";
///         };
///     }
///
/// They are indented no deeper than kMaxIndents levels.
std::string describe(const Value& value);
/// The same, cut after `most` bytes where it is longer; " …" then stands for the rest, which takes
/// no time.
std::string describe(const Dictionary& dictionary, std::size_t most);

/// Replaces each "%@" of a format, in order, by the arguments' texts; there are as many.
std::string formatted(std::string_view format, std::initializer_list<std::string_view> arguments);

}  // namespace orvanta
