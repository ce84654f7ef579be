#include "orvanta/Tool/Text.h"

#include <algorithm>
#include <numeric>
#include <vector>

#include "orvanta/Foundation/JSON.h"
#include "orvanta/Tool/CommandLine.h"

namespace orvanta::tool {

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
  // Input that was read at the depth limit can be nested some levels deeper in a result.
  const JSONStyle style{
      .pretty = pretty, .escapeSlashes = false, .depthLimit = kJSONDepthLimit + 8};
  if (!writeJSON(value, text, style)) {
    throw CommandError(ExitCode::rejected,
                       "the result has no JSON text: it holds an infinite number or the like");
  }
  if (text.find('\x7F') == std::string::npos && text.find('\xC2') == std::string::npos) {
    out << text << '\n';
    return;
  }
  // Only the pretty style adds line breaks; those within strings are already escaped.
  std::string_view rest = text;
  for (auto end = rest.find('\n'); end != rest.npos; end = rest.find('\n')) {
    out << escapeForTerminal(rest.substr(0, end)) << '\n';
    rest.remove_prefix(end + 1);
  }
  out << escapeForTerminal(rest) << '\n';
}

}  // namespace orvanta::tool
