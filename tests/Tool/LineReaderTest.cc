#include <gtest/gtest.h>

#include <sstream>

#include "orvanta/Tool/LineReader.h"
#include "support/TemporaryFolder.h"

namespace orvanta::testing {
namespace {

using tool::LineReader;

TEST(LineReader, ReadsFilesInOrder) {
  const TemporaryFolder folder;
  const std::string first = folder.file("first", "a\r\n\nb");
  const std::string empty = folder.file("empty", "");
  std::istringstream in("c\n");
  std::ostringstream ignored;
  LineReader reader({first, empty, "-"}, {.in = in, .out = ignored, .err = ignored});
  const std::pair<std::string, std::string> rows[] = {
      {"a", first + ":1"}, {"", first + ":2"}, {"b", first + ":3"}, {"c", "standard input:1"}};
  std::uint64_t number = 0;
  for (const auto& [text, location] : rows) {
    ASSERT_TRUE(reader.next());
    EXPECT_EQ(reader.text(), text);
    EXPECT_EQ(reader.location(), location);
    EXPECT_EQ(reader.number(), ++number);
  }
  EXPECT_FALSE(reader.next());
}

TEST(LineReader, TruncatesALineThatIsTooLong) {
  constexpr std::size_t kMax = LineReader::kMaxLineBytes;
  for (const std::string_view end : {"\n", "\r\n", ""}) {
    for (const std::size_t length : {kMax, kMax + 1}) {
      std::istringstream in(std::string(length, 'x').append(end));
      std::ostringstream ignored;
      LineReader reader({"-"}, {.in = in, .out = ignored, .err = ignored});
      ASSERT_TRUE(reader.next());
      EXPECT_EQ(reader.text().size(), kMax) << length;
      EXPECT_EQ(reader.isTooLong(), length + (end.size() == 2 ? 1 : 0) > kMax) << length;
      EXPECT_FALSE(reader.next()) << "the rest of the line is skipped";
    }
  }
}

TEST(LineReader, ChecksEveryFileBeforeItReads) {
  const TemporaryFolder folder;
  const std::string file = folder.file("file", "a\n");
  std::istringstream in("b\n");
  std::ostringstream ignored;
  const tool::Streams streams{.in = in, .out = ignored, .err = ignored};
  const std::pair<std::vector<std::string>, tool::ExitCode> rows[] = {
      {{file, folder.path() / "missing"}, tool::ExitCode::unreadable},
      {{file, folder.path()}, tool::ExitCode::unreadable},
      {{"-", file, "-"}, tool::ExitCode::usage},
  };
  for (const auto& [files, code] : rows) {
    try {
      const LineReader reader(files, streams);
      ADD_FAILURE() << files.back();
    } catch (const tool::CommandError& error) {
      EXPECT_EQ(error.code(), code) << error.what();
    }
  }
}

}  // namespace
}  // namespace orvanta::testing
