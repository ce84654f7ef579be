#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "orvanta/Tool/CommandLine.h"

namespace orvanta::testing {

/// The result of a run of the program.
struct ToolRun {
  tool::ExitCode exit;
  std::string out;
  std::string err;
};

/// Runs the program in this process with these arguments (without its name) and this standard
/// input. Starts at log level 1 and restores the previous level.
ToolRun runTool(const std::vector<std::string>& arguments, std::string_view standardIn = "");

}  // namespace orvanta::testing
