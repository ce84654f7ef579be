#include "orvanta/Simulator/Report/TerminalText.h"

namespace orvanta {

std::string escapeForTerminal(std::string_view string, std::size_t indent) {
  constexpr std::string_view kDigits = "0123456789abcdef";
  std::string escaped;
  for (std::size_t i = 0; i < string.size(); ++i) {
    const auto byte = static_cast<unsigned char>(string[i]);
    // The control characters from U+0080 to U+009F have two bytes in UTF-8.
    const bool isC1 =
        byte == 0xC2 && i + 1 < string.size() && static_cast<unsigned char>(string[i + 1]) < 0xA0;
    if (byte == '\n' && indent != 0) {
      escaped.append("\n").append(indent, ' ');
    } else if (byte < 0x20 || byte == 0x7F || isC1) {
      const auto code = isC1 ? static_cast<unsigned char>(string[++i]) : byte;
      escaped.append("\\u00");
      escaped += {kDigits[code >> 4U], kDigits[code & 15U]};
    } else {
      escaped += string[i];
    }
  }
  return escaped;
}

std::string counted(std::uint64_t count, const std::string& noun) {
  return std::to_string(count) + " " + noun + (count == 1 ? "" : "s");
}

}  // namespace orvanta
