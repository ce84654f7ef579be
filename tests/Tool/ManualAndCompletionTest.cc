#include <gtest/gtest.h>

#include <cstdio>
#include <fstream>
#include <regex>
#include <set>
#include <sstream>

#include "support/ToolRunner.h"

namespace orvanta::testing {
namespace {

std::set<std::string> namesIn(std::string text, const std::string& pattern) {
  const std::regex regex(pattern);
  std::set<std::string> names;
  for (std::smatch at; std::regex_search(text, at, regex); text = at.suffix()) names.insert(at[1]);
  return names;
}

/// Returns bash's completions of `last` after these words, preceded by the options for readline.
std::string offered(const std::string& words, const std::string& last) {
  const std::string command = R"(bash -c 'source "$0"/completions/orvanta.bash
      compopt() { echo $*; }; COMP_WORDS=(orvanta $2 "$3"); COMP_CWORD=$((${#COMP_WORDS[@]} - 1))
      _orvanta "$1"; printf "%s " ${COMPREPLY[@]}' ')" ORVANTA_SOURCE_DIR "' '" ORVANTA_PROGRAM
                              "' '";
  FILE* const pipe = popen((command + words + "' '" + last + "'").c_str(), "r");
  std::string out;
  for (int c = std::fgetc(pipe); c != EOF; c = std::fgetc(pipe)) out += static_cast<char>(c);
  EXPECT_EQ(pclose(pipe), 0);
  return out;
}

TEST(ManualAndCompletion, HaveTheCommandsAndOptionsOfTheProgram) {
  std::stringstream file;
  file << std::ifstream(ORVANTA_SOURCE_DIR "/man/orvanta.1").rdbuf();
  const std::string manual = std::regex_replace(file.str(), std::regex("\\.It Fl "), ".It -");
  auto commands = namesIn(runTool({"--help"}).out, "\n  ([a-z]+) +[A-Z]");
  EXPECT_EQ(commands, namesIn(manual, "\n\\.Ss (\\S+)"));
  EXPECT_EQ(commands, namesIn(offered("", ""), "(\\S+)"));
  commands.insert("--log-level=1");  // the options before a command
  for (const std::string& command : commands) {
    const bool isCommand = command[0] != '-';
    auto options = namesIn(runTool({command, "--help"}).out, "\n  (?:-h,)?(-[-a-z]+)");
    if (isCommand) options.insert("--log-level");
    EXPECT_EQ(options, namesIn(offered(command, "-"), "(\\S+)")) << command;
    const auto begin = manual.find(isCommand ? "\n.Ss " + command + "\n" : "\n.Sh DESCRIPTION\n");
    const auto size = manual.find("\n.S", begin + 1) - begin;
    auto described = namesIn(manual.substr(begin, size), "\n\\.It (-[-a-z]+)");
    if (isCommand) described.insert({"--help", "--log-level"});
    EXPECT_EQ(options, described) << command;
  }
  EXPECT_EQ(offered("request", "OrvantaFetchCoupon"), "OrvantaFetchCouponRequest ");
  EXPECT_EQ(offered("--log-level =", ""), "0 1 2 ");
  EXPECT_EQ(offered("model --update file OrvantaUser", ""), "-o default\n ");
}

}  // namespace
}  // namespace orvanta::testing
