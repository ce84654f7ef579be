#pragma once

#include <cstddef>
#include <ostream>
#include <string>
#include <string_view>

#include "orvanta/Foundation/Value.h"

namespace orvanta::tool {

/// A text for a terminal: control characters are written as \u00xx; with an indent a line break
/// stays one, followed by that many spaces.
std::string printable(std::string_view text, std::size_t indent = 0);

/// How many characters must be inserted, left out or replaced to turn one text into the other.
std::size_t editDistance(std::string_view a, std::string_view b);

/// Writes the JSON text of a value and a line end, control characters as \u00xx; throws Failure for
/// a value that has none.
void printJSON(const Value& value, std::ostream& out, bool pretty);

}  // namespace orvanta::tool
