#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "orvanta/Tool/CommandLine.h"

namespace orvanta::testing {

/// What a run of the program came to.
struct ToolRun {
  tool::ExitCode exit;
  std::string out;
  std::string err;
};

/// Runs the program in this process, with these arguments behind its name and that text as standard
/// input. It begins at log level 1, and leaves the level as it was.
ToolRun runTool(const std::vector<std::string>& arguments, std::string_view standardIn = "");

}  // namespace orvanta::testing
