#include "support/ToolRunner.h"

#include <cstdlib>
#include <fstream>
#include <sstream>
#include <stdexcept>

#include "support/ModelZoo.h"

namespace orvanta::testing {

ToolRun runTool(const std::vector<std::string>& arguments, std::string_view standardIn) {
  const LogLevel level(1);
  std::vector<const char*> argv{"orvanta"};
  for (const std::string& argument : arguments) argv.push_back(argument.c_str());
  std::istringstream in{std::string(standardIn)};
  std::ostringstream out;
  std::ostringstream err;
  const tool::ExitCode exit = tool::run(static_cast<int>(argv.size()), argv.data(),
                                        tool::Streams{.in = in, .out = out, .err = err});
  return {exit, out.str(), err.str()};
}

ScratchFolder::ScratchFolder() {
  std::string name = (std::filesystem::temp_directory_path() / "orvanta-test-XXXXXX").string();
  if (mkdtemp(name.data()) == nullptr) throw std::runtime_error("no folder: " + name);
  path_ = name;
}

ScratchFolder::~ScratchFolder() {
  std::error_code ignored;
  std::filesystem::remove_all(path_, ignored);
}

std::string ScratchFolder::file(const std::string& name, std::string_view text) const {
  const std::filesystem::path path = path_ / name;
  std::ofstream(path, std::ios::binary) << text;
  return path.string();
}

}  // namespace orvanta::testing
