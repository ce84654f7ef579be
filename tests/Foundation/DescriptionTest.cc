#include <gtest/gtest.h>

#include "orvanta/Foundation/Description.h"
#include "support/Values.h"

namespace orvanta::testing {
namespace {

TEST(Description, PrintsSingleValuesPlainly) {
  EXPECT_EQ(describe(Value()), "(null)");
  EXPECT_EQ(describe(Value::null()), "<null>");
  EXPECT_EQ(describe("a \"text\"\n\u00e9"), "a \"text\"\n\u00e9");
  EXPECT_EQ(describe(Date{1500000000.5}), "2017-07-14 02:40:00 +0000");
  EXPECT_EQ(describe(*Url::parse("http://x")), "http://x");
  EXPECT_EQ(describe(Labeled::make("x")), "<Labeled x>");
  EXPECT_EQ(describe(Value(&Labeled::kClass)), "Labeled");
  EXPECT_EQ(describe(Array()), "(\n)");
  EXPECT_EQ(describe(Dictionary()), "{\n}");
}

TEST(Description, PrintsCollectionsAsAnOldPropertyListWithSortedKeys) {
  const Value value = parseJSON(R"({"none": null, "list": [1, "a b", {"k": [[]]}], "empty": [],
      "alert": {"title": "Hello!", "body": "hey"}, "Z": {}, "content-type": -1, "aa": true})");
  EXPECT_EQ(describe(value),
            "{\n"
            "    Z =     {\n"
            "    };\n"
            "    aa = 1;\n"
            "    alert =     {\n"
            "        body = hey;\n"
            "        title = \"Hello!\";\n"
            "    };\n"
            "    \"content-type\" = \"-1\";\n"
            "    empty =     (\n"
            "    );\n"
            "    list =     (\n"
            "        1,\n"
            "        \"a b\",\n"
            "                {\n"
            "            k =             (\n"
            "                                (\n"
            "                )\n"
            "            );\n"
            "        }\n"
            "    );\n"
            "    none = \"<null>\";\n"
            "}");
}

TEST(Description, QuotesStringsOfOtherThanLettersAndDigits) {
  const std::pair<Value, std::string_view> rows[] = {
      {"plain09AZaz", "plain09AZaz"},
      {"", R"("")"},
      {-1, R"("-1")"},
      {Labeled::make("\n"), R"("<Labeled \n>")"},
      {"\"\\\n\t\r", R"("\"\\\n\t\r")"},
      {"\x01\x7F\x1B", R"("\001\177\033")"},
      {"\U0001F600", R"("\Ud83d\Ude00")"},
      {"\xC3", R"("\U00c3")"},
  };
  for (const auto& [value, text] : rows) {
    EXPECT_EQ(describe(Array({value})), "(\n    " + std::string(text) + "\n)");
  }
}

TEST(Description, FormatsReplacePlaceholdersInOrder) {
  EXPECT_EQ(formatted("%@ and %@", {"one", "two"}), "one and two");
  EXPECT_EQ(formatted("%@", {"%@"}), "%@");
  EXPECT_EQ(formatted("100% of %@", {""}), "100% of ");
  EXPECT_EQ(formatted("%@ %@", {"one"}), "one %@");
}

}  // namespace
}  // namespace orvanta::testing
