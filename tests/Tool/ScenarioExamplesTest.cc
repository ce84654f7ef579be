#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "support/ToolRunner.h"

namespace orvanta::testing {
namespace {

namespace fs = std::filesystem;

std::vector<fs::path> scenarioFolders() {
  std::vector<fs::path> folders;
  for (const auto& entry :
       fs::directory_iterator(fs::path(ORVANTA_SOURCE_DIR) / "examples" / "scenarios")) {
    folders.push_back(entry.path());
  }
  std::sort(folders.begin(), folders.end());
  return folders;
}

std::string textOf(const fs::path& file) {
  std::ifstream in(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), {}};
}

/// Compares each example's report with the program's output, byte for byte. scripts/update-reports
/// rewrites the reports.
class ScenarioExamplesTest : public ::testing::TestWithParam<fs::path> {};

TEST_P(ScenarioExamplesTest, PrintsItsReport) {
  const fs::path& folder = GetParam();
  const ToolRun result = runTool({"notify", folder / "payload.json", "--scenario",
                                  folder / "scenario.json", "--log-level", "2", "--json"});
  EXPECT_EQ(result.exit, tool::ExitCode::done) << result.err;
  EXPECT_EQ(result.out, textOf(folder / "report.json"));
}

INSTANTIATE_TEST_SUITE_P(Examples, ScenarioExamplesTest, ::testing::ValuesIn(scenarioFolders()),
                         [](const ::testing::TestParamInfo<fs::path>& folder) {
                           std::string name = folder.param.filename().string();
                           std::replace(name.begin(), name.end(), '-', '_');
                           return name;
                         });

}  // namespace
}  // namespace orvanta::testing
