#include <gtest/gtest.h>

#include "orvanta/Simulator/Report/TerminalText.h"

namespace orvanta::testing {
namespace {

TEST(TerminalText, EscapesControlCharactersForATerminal) {
  const struct {
    std::string_view text;
    std::size_t indent;
    std::string_view escaped;
  } rows[] = {
      {"plain \u00e9\u20ac", 0, "plain \u00e9\u20ac"},
      {"\x1b[31m\x7f\r", 0, R"(\u001b[31m\u007f\u000d)"},
      {"\u0080\u009f\u00a0", 0, "\\u0080\\u009f\u00a0"},  // C1 ends before U+00A0
      {"a\xc2", 0, "a\xc2"},                              // a truncated sequence
      {"a\nb", 0, R"(a\u000ab)"},
      {"a\nb", 2, "a\n  b"},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(escapeForTerminal(row.text, row.indent), row.escaped);
  }
}

}  // namespace
}  // namespace orvanta::testing
