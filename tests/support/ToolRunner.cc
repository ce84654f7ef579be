#include "support/ToolRunner.h"

#include <sstream>

#include "support/LogLevel.h"

namespace orvanta::testing {

ToolRun runTool(const std::vector<std::string>& arguments, std::string_view standardIn) {
  const LogLevel level(1);
  std::vector<const char*> argv{"orvanta"};
  for (const std::string& argument : arguments) argv.push_back(argument.c_str());
  std::istringstream in{std::string(standardIn)};
  std::ostringstream out;
  std::ostringstream err;
  const tool::ExitCode exit = tool::runCommandLine(static_cast<int>(argv.size()), argv.data(),
                                                   tool::Streams{.in = in, .out = out, .err = err});
  return {exit, out.str(), err.str()};
}

}  // namespace orvanta::testing
