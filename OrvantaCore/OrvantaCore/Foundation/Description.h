#pragma once

#include <cstddef>
#include <initializer_list>
#include <limits>
#include <string>
#include <string_view>

#include "Foundation/Value.h"

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
/// Of a collection, what lies beyond `limit` bytes is not made: the text is then longer than the
/// limit, by little, and its first `limit` bytes are those of the whole. Indentation makes the
/// whole text of a deep one far longer than its JSON.
std::string describe(const Value& value,
                     std::size_t limit = std::numeric_limits<std::size_t>::max());

/// Replaces each "%@" of a format, in order, by the arguments' texts; there are as many.
std::string formatted(std::string_view format, std::initializer_list<std::string_view> arguments);

}  // namespace orvanta
