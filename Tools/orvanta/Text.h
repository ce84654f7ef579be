#pragma once

#include <cstddef>
#include <ostream>
#include <string>
#include <string_view>

#include "orvanta/Foundation/Value.h"
#include "orvanta/Simulator/Report/TerminalText.h"

namespace orvanta::tool {

/// Writes a value as JSON and a line end, with control characters as \u00xx. Throws CommandError if
/// JSON cannot represent the value.
void printJSON(const Value& value, std::ostream& out, bool pretty);

}  // namespace orvanta::tool
