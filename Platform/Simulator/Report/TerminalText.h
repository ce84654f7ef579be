#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace orvanta {

/// Returns a copy that is safe to print on a terminal: control characters become \u00xx. With an
/// indent, a line break stays one and is followed by that many spaces.
std::string escapeForTerminal(std::string_view string, std::size_t indent = 0);

/// Returns "1 byte" or "2 bytes".
std::string counted(std::uint64_t count, const std::string& noun);

}  // namespace orvanta
