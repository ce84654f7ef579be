#pragma once

#include <cstddef>
#include <ostream>
#include <string>
#include <string_view>

#include "orvanta/Foundation/Value.h"
#include "orvanta/Simulator/Report/TerminalText.h"

namespace orvanta::tool {

/// How many characters must be inserted, left out or replaced to turn one text into the other.
std::size_t editDistance(std::string_view a, std::string_view b);

/// Writes the JSON text of a value and a line end, control characters as \u00xx; throws Failure for
/// a value that has none.
void printJSON(const Value& value, std::ostream& out, bool pretty);

}  // namespace orvanta::tool
