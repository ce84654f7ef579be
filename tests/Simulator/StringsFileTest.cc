#include <gtest/gtest.h>

#include <stdexcept>

#include "orvanta/Simulator/StringsFile.h"

namespace orvanta::testing {
namespace {

/// Returns the localized string of a key, or the message of what is thrown.
std::string localized(std::string_view strings, std::string_view key) {
  try {
    return SimulatedBundle(parseStrings(strings, "Localizable.strings")).localizedStringForKey(key);
  } catch (const std::runtime_error& error) {
    return error.what();
  }
}

TEST(StringsFile, ReturnsTheStringOrElseTheKey) {
  constexpr std::string_view kStrings =
      "\xEF\xBB\xBF/* Actions; \"not\" = \"this\"; */\n"
      "\"yes\" = \"Ja // nicht /* doch */\"; // \"yes\" = \"late\";\r\n"
      "\"yes\"=\"zweites\";\n"
      "bare_key.1 = bare-value;no=\"Nein\";\n"
      "\"empty\" /* here */ = // and there\n \"\" ;\n"
      "\"lines\" = \"one\ntwo\";\n"
      "\"esc\" = \"\\\"\\\\\\n\\t\\r\\'\";\n"
      "\"\\U0041\" = \"\\U00e4\\U20AC\\Ud83e\\UdD8B|\\Ud83E\\UDD8B\";\n"
      "\"\xC3\xA4\" = \"\xF0\x9F\xA6\x8B\";";
  const struct {
    std::string_view key;
    std::string_view text;
  } cases[] = {
      {"yes", "Ja // nicht /* doch */"},
      {"bare_key.1", "bare-value"},
      {"no", "Nein"},
      {"empty", ""},
      {"lines", "one\ntwo"},
      {"\xC3\xA4", "\xF0\x9F\xA6\x8B"},
      {"not", "not"},
      {"", ""},
      {"YES", "YES"},
  };
  for (const auto& [key, text] : cases) EXPECT_EQ(localized(kStrings, key), text);
  EXPECT_EQ(localized(kStrings, "esc"), "\"\\\n\t\r'");
  EXPECT_EQ(localized(kStrings, "A"), "ä€🦋|🦋");
  EXPECT_EQ(localized("", "k"), "k");
  EXPECT_EQ(localized(" // only", "k"), "k");
}

TEST(StringsFile, ErrorsNameFileAndLine) {
  const struct {
    std::string_view strings;
    std::string_view error;
  } cases[] = {
      {R"("a" = "b")", R"(1: expected ";")"},
      {"\"a\" = \"b\";\n\"c\" \"d\";", R"(2: expected "=")"},
      {"\n\n= \"b\";", "3: expected a key"},
      {"a = ;", "1: expected a text"},
      {"a =\n\"b;\n\n", "2: a text without closing quote"},
      {"a = b;\n/* c", "2: a comment without end"},
      {"a = \"\n\\q\";", "2: an unknown escape"},
      {R"(a = "\U12g4";)", R"(1: \U without four hex digits)"},
      {R"(a = "\Ud83e";)", "1: half a surrogate pair"},
      {R"(a = "\Ud83e\U0041";)", "1: half a surrogate pair"},
      {"a = b;\nc = \"\xFF\";", "2: not UTF-8"},
      {"\xC3", "1: not UTF-8"},
      {"\xC0\xAF", "1: not UTF-8"},
      {"\xED\xA0\x80", "1: not UTF-8"},
  };
  for (const auto& [strings, error] : cases) {
    EXPECT_EQ(localized(strings, "a"), "Localizable.strings:" + std::string(error)) << strings;
  }
}

}  // namespace
}  // namespace orvanta::testing
