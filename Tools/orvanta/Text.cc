#include "orvanta/Tool/Text.h"

#include <algorithm>
#include <numeric>
#include <vector>

#include "orvanta/Foundation/JSON.h"
#include "orvanta/Tool/Tool.h"

namespace orvanta::tool {

std::string printable(std::string_view text, std::size_t indent) {
  constexpr std::string_view kDigits = "0123456789abcdef";
  std::string result;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const auto byte = static_cast<unsigned char>(text[i]);
    const bool isC1 =
        byte == 0xC2 && i + 1 < text.size() && static_cast<unsigned char>(text[i + 1]) < 0xA0;
    if (byte == '\n' && indent != 0) {
      result.append("\n").append(indent, ' ');
    } else if (byte < 0x20 || byte == 0x7F || isC1) {
      const auto code = isC1 ? static_cast<unsigned char>(text[++i]) : byte;
      result.append("\\u00");
      result += {kDigits[code >> 4U], kDigits[code & 15U]};
    } else {
      result += text[i];
    }
  }
  return result;
}

std::size_t editDistance(std::string_view a, std::string_view b) {
  std::vector<std::size_t> row(b.size() + 1);
  std::iota(row.begin(), row.end(), std::size_t{0});
  for (std::size_t i = 0; i < a.size(); ++i) {
    std::size_t diagonal = std::exchange(row[0], i + 1);
    for (std::size_t j = 0; j < b.size(); ++j) {
      const std::size_t replaced = diagonal + (a[i] == b[j] ? 0 : 1);
      diagonal = row[j + 1];
      row[j + 1] = std::min({replaced, row[j] + 1, diagonal + 1});
    }
  }
  return row.back();
}

void printJSON(const Value& value, std::ostream& out, bool pretty) {
  std::string text;
  // What was read may stand some levels deeper in a result.
  const JSONStyle style{
      .pretty = pretty, .escapeSlashes = false, .depthLimit = kJSONDepthLimit + 8};
  if (!writeJSON(value, text, style)) {
    throw Failure(ExitCode::notMade,
                  "the result has no JSON text: it holds an infinite number or the like");
  }
  if (text.find('\x7F') == std::string::npos && text.find('\xC2') == std::string::npos) {
    out << text << '\n';
    return;
  }
  // Line breaks are the style's own: those of a text are escaped already.
  std::string_view rest = text;
  for (auto end = rest.find('\n'); end != rest.npos; end = rest.find('\n')) {
    out << printable(rest.substr(0, end)) << '\n';
    rest.remove_prefix(end + 1);
  }
  out << printable(rest) << '\n';
}

}  // namespace orvanta::tool
