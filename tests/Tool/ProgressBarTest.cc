#include <gtest/gtest.h>

#include <sstream>

#include "orvanta/Tool/ProgressBar.h"

namespace orvanta::testing {
namespace {

using tool::ProgressBar;

std::string bar(std::size_t filled) {
  return "[" + std::string(filled, '#') + std::string(40 - filled, ' ') + "] ";
}

TEST(ProgressBar, DrawsItsShareAndErasesItself) {
  const struct {
    std::uint64_t done, total;
    std::string drawn;
  } rows[] = {
      {0, 8, bar(0) + "0 %, label"},
      {3, 8, bar(15) + "37 %, label"},
      {8, 8, bar(40) + "100 %, label"},
      {9, 8, bar(40) + "100 %, label"},  // a file that grows
      {9, 0, "label"},
  };
  for (const auto& row : rows) {
    std::ostringstream out;
    {
      ProgressBar progress(out, /*isVisible=*/true);
      progress.update(row.done, row.total, "label");
      EXPECT_EQ(out.str(), "\r\033[K" + row.drawn);
      progress.erase();
    }
    EXPECT_EQ(out.str(), "\r\033[K" + row.drawn + "\r\033[K") << "erased once";
  }
}

TEST(ProgressBar, DrawsNothingOnAStreamThatIsNotATerminal) {
  std::ostringstream out;
  {
    ProgressBar progress(out);
    EXPECT_FALSE(progress.isVisible());
    progress.update(1, 2, "label");
  }
  EXPECT_EQ(out.str(), "");
}

}  // namespace
}  // namespace orvanta::testing
