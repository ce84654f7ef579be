#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <string>
#include <vector>

#include "fuzzer.h"

// Runs the fuzz targets on their corpora and on every example, in any build, without libFuzzer.

namespace orvanta::testing {
namespace {

namespace fs = std::filesystem;

struct Input {
  std::string name;
  std::string text;
};

/// Reads the files below a folder of the source tree whose names have this ending, sorted by name.
std::vector<Input> filesIn(const std::string& folder, std::string_view ending) {
  std::vector<Input> inputs;
  for (const auto& entry :
       fs::recursive_directory_iterator(fs::path(ORVANTA_SOURCE_DIR) / folder)) {
    if (!entry.is_regular_file() || !entry.path().string().ends_with(ending)) continue;
    std::ifstream in(entry.path(), std::ios::binary);
    inputs.push_back({fs::relative(entry.path(), ORVANTA_SOURCE_DIR).string(),
                      {std::istreambuf_iterator<char>(in), {}}});
  }
  std::sort(inputs.begin(), inputs.end(),
            [](const Input& a, const Input& b) { return a.name < b.name; });
  return inputs;
}

/// A target, and the first line that turns an example payload or stored event into its input.
struct Target {
  std::string name;
  void (*run)(std::string_view input);
  std::string payloadLine;
  std::string eventLine;
};
void PrintTo(const Target& target, std::ostream* out) { *out << target.name; }

class CorpusReplayTest : public ::testing::TestWithParam<Target> {
 protected:
  static void replay(const std::string& name, const std::string& text) {
    std::cout << name << std::endl;  // the last name before a crash is the input
    try {
      GetParam().run(text);
    } catch (const std::exception& error) {
      ADD_FAILURE() << name << ": " << error.what();
    }
  }
};

TEST_P(CorpusReplayTest, AcceptsEveryInput) {
  const std::vector<Input> corpus = filesIn("fuzzers/corpus/" + GetParam().name, "");
  EXPECT_FALSE(corpus.empty());
  EXPECT_LE(corpus.size(), 60U);
  for (const Input& input : corpus) replay(input.name, input.text);
  for (const Input& input : filesIn("examples", "payload.json")) {
    replay(input.name, GetParam().payloadLine + input.text);
  }
  for (const Input& input : filesIn("examples/payloads", ".json")) {
    replay(input.name, GetParam().payloadLine + input.text);
  }
  std::ifstream events(fs::path(ORVANTA_SOURCE_DIR) / "examples/events/stored.jsonl");
  std::string line;
  for (int number = 1; std::getline(events, line); ++number) {
    replay("examples/events/stored.jsonl:" + std::to_string(number), GetParam().eventLine + line);
  }
}

INSTANTIATE_TEST_SUITE_P(Targets, CorpusReplayTest,
                         ::testing::Values(Target{"json", fuzzing::json, "", ""},
                                           Target{"mapping", fuzzing::mapping,
                                                  "OrvantaPushObject\n", "OrvantaEventRequest\n"},
                                           Target{"pipeline", fuzzing::pipeline, "\n", "\n"}),
                         [](const ::testing::TestParamInfo<Target>& target) {
                           return target.param.name;
                         });

}  // namespace
}  // namespace orvanta::testing
