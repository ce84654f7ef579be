#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "Tools/orvanta/Tool.h"

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

/// A folder of its own, gone at the end.
class ScratchFolder {
 public:
  ScratchFolder();
  ScratchFolder(const ScratchFolder&) = delete;
  ScratchFolder& operator=(const ScratchFolder&) = delete;
  ~ScratchFolder();

  std::string path() const { return path_.string(); }
  /// Writes a file of that name and returns its path.
  std::string file(const std::string& name, std::string_view text) const;

 private:
  std::filesystem::path path_;
};

}  // namespace orvanta::testing
