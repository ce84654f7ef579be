#include "orvanta/Tool/Text.h"

#include "orvanta/Foundation/JSON.h"
#include "orvanta/Tool/CommandLine.h"

namespace orvanta::tool {

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
