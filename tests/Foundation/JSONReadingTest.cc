#include <gtest/gtest.h>

#include <cmath>

#include "support/Values.h"

namespace orvanta::testing {
namespace {

TEST(JSONReading, ReadsEveryWellFormedText) {
  const std::string longText(40, 'x');
  const struct {
    std::string text;
    Value value;
  } rows[] = {
      {" \t\r\n true \n", true},
      {"\xEF\xBB\xBF[1]", Array({1})},
      {"[[],{}]", Array({Array(), Dictionary()})},
      {"[ 1 , false,null , \"a\" ]", Array({1, false, Value::null(), "a"})},
      {R"({"a" : {"b":[{"c":1}]},"d":2})",
       Dictionary({{"a", Dictionary({{"b", Array({Dictionary({{"c", 1}})})}})}, {"d", 2}})},
      {R"("\"\\\/\b\f\n\r\t")", "\"\\/\b\f\n\r\t"},
      {R"("\u0041\u00e9\u00E9\u20ac\uFFFF")", "A\u00e9\u00e9\u20ac\uFFFF"},
      {R"("\ud83d\ude00\uD800\uDC00\udbff\udfff")", "\U0001F600\U00010000\U0010FFFF"},
      {R"("\u0000")", std::string(1, '\0')},
      {R"("\u007f\u0080\u07ff\u0800")", "\x7F\u0080\u07ff\u0800"},
      {"\"\x7F\u00e9\u20ac\U0001F600\U0010FFFF\uD7FF\uE000\"",
       "\x7F\u00e9\u20ac\U0001F600\U0010FFFF\uD7FF\uE000"},
      {'"' + longText + "\\n" + longText + "\\u00e9" + longText + '"',
       longText + "\n" + longText + "\u00e9" + longText},
      {R"({"":1, "a key of more than fourteen bytes": 2})",
       Dictionary({{"", 1}, {"a key of more than fourteen bytes", 2}})},
  };
  for (const auto& row : rows) {
    JSONError error{"untouched", 7};
    const Value value = parseJSON(row.text, &error);
    EXPECT_EQ(value, row.value) << row.text;
    EXPECT_EQ(value.kind(), row.value.kind()) << row.text;
    EXPECT_EQ(error.reason, "untouched") << row.text;
  }
}

TEST(JSONReading, FindsSpecialCharactersAtEveryOffset) {
  for (std::size_t before = 0; before < 20; ++before) {
    for (std::size_t after = 0; after < 12; ++after) {
      const std::string head(before, 'h');
      const std::string tail(after, 't');
      const auto plain = [&](std::string_view middle) {
        return std::string(head).append(middle).append(tail);
      };
      const auto quoted = [&](std::string_view middle) { return '"' + plain(middle) + '"'; };
      EXPECT_EQ(parsed(quoted("\\n")), Value(plain("\n")));
      EXPECT_EQ(parsed(quoted("\u00e9")), Value(plain("\u00e9")));
      EXPECT_EQ(parsed(quoted(" !#[]~\x7F")), Value(plain(" !#[]~\x7F")));
      for (const char bad : {'\0', '\n', '\x1F', '\x80', '\xFF'}) {
        JSONError error;
        EXPECT_TRUE(parseJSON(quoted({&bad, 1}), &error).isNil());
        EXPECT_EQ(error.offset, before + 1);
      }
    }
  }
}

TEST(JSONReading, KeepsTheKindOfNumbers) {
  const struct {
    std::string text;
    Value value;
  } rows[] = {
      {"0", 0},
      {"-0", -0.0},
      {"65.0", 65.0},
      {"1e2", 100.0},
      {"9223372036854775807", std::int64_t{9223372036854775807}},
      {"-9223372036854775808", std::numeric_limits<std::int64_t>::min()},
      {"9223372036854775808", std::uint64_t{9223372036854775808U}},
      {"18446744073709551615", std::uint64_t{18446744073709551615U}},
      {"18446744073709551616", 18446744073709551616.0},
      {"-9223372036854775809", -9223372036854775808.0},
      {"1.7976931348623157e308", 1.7976931348623157e308},
      {"-1e-400", -0.0},
      {"2.2250738585072011e-308", 2.2250738585072011e-308},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(parsed(row.text), row.value) << row.text;
    EXPECT_EQ(parsed(row.text).kind(), row.value.kind()) << row.text;
  }
}

TEST(JSONReading, TellsWhyAndWhereATextIsIllFormed) {
  constexpr std::string_view kEnd = "the text ends where a value should stand";
  constexpr std::string_view kOpen = "the text ends inside a container";
  constexpr std::string_view kValue = "expected a value";
  constexpr std::string_view kKey = "expected a key in quotes";
  constexpr std::string_view kColon = "expected ':' after a key";
  constexpr std::string_view kInArray = "expected ',' or ']'";
  constexpr std::string_view kInDictionary = "expected ',' or '}'";
  constexpr std::string_view kTrailing = "text after the value";
  constexpr std::string_view kDigit = "expected a digit";
  constexpr std::string_view kZero = "a number with a leading zero";
  constexpr std::string_view kRange = "a number beyond the range of a double";
  constexpr std::string_view kQuote = "a string without its closing quote";
  constexpr std::string_view kControl = "a control character in a string";
  constexpr std::string_view kEscape = "an unknown escape";
  constexpr std::string_view kCutEscape = "the text ends inside an escape";
  constexpr std::string_view kHex = "expected four hex digits after \\u";
  constexpr std::string_view kSurrogate = "half of a surrogate pair";
  constexpr std::string_view kUTF8 = "text that is not UTF-8";
  const struct {
    std::string text;
    std::string_view reason;
    std::size_t line;
    std::size_t column;
  } rows[] = {
      {"", kEnd, 1, 1},
      {"[1", kOpen, 1, 3},
      {"[1 2]", kInArray, 1, 4},
      {"{\"a\":1]", kInDictionary, 1, 7},
      {"1 2", kTrailing, 1, 3},
      {"[1,]", kValue, 1, 4},
      {"nul", kValue, 1, 1},
      {"+1", kValue, 1, 1},
      {"{\"a\":1,}", kKey, 1, 8},
      {"{", kKey, 1, 2},
      {"{\"a\"", kColon, 1, 5},
      {"1.", kDigit, 1, 3},
      {"01", kZero, 1, 1},
      {"[0, -1e400]", kRange, 1, 5},
      {"\"abc", kQuote, 1, 1},
      {"[\"a\nb\"]", kControl, 1, 4},
      {R"("\x")", kEscape, 1, 2},
      {"\"\\", kCutEscape, 1, 2},
      {R"("\u12g4")", kHex, 1, 2},
      {R"("\ud800")", kSurrogate, 1, 2},
      {R"("\udc00")", kSurrogate, 1, 2},
      {R"("a\ud800\u0041")", kSurrogate, 1, 3},
      {R"("\ud800\ue000")", kSurrogate, 1, 2},
      {"\"\x80\"", kUTF8, 1, 2},
      {"\"\xC0\x80\"", kUTF8, 1, 2},
      {"\"\xE0\x9F\xBF\"", kUTF8, 1, 2},
      {"\"\xED\xA0\x80\"", kUTF8, 1, 2},
      {"\"\xF4\x90\x80\x80\"", kUTF8, 1, 2},
      {"\"\xF0\x9F\x98", kUTF8, 1, 2},
      {"{\"\xFF\":1}", kUTF8, 1, 3},
      {std::string("[\0]", 3), kValue, 1, 2},
      // Columns count characters; keys and containers that stand before must not matter.
      {"{\n  \"\u00e9\U0001F600\": [1, {\"long enough to be carved\": [tru]}]}", kValue, 2, 43},
      {"\r\n\r\n  [1,\r\n   ?]", kValue, 4, 4},
  };
  for (const auto& row : rows) {
    JSONError error;
    EXPECT_TRUE(parseJSON(row.text, &error).isNil()) << row.text;
    EXPECT_EQ(error.reason, row.reason) << row.text;
    const TextPosition position = TextPosition::of(error.offset, row.text);
    EXPECT_EQ(position.line, row.line) << row.text;
    EXPECT_EQ(position.column, row.column) << row.text;
    EXPECT_TRUE(parseJSON(row.text).isNil()) << row.text;
  }
}

TEST(JSONReading, NeverReadsBehindTheText) {
  // Every prefix, in a block of its own so that a step too far is seen by the address checker.
  const std::string whole =
      R"({"key": [1.5e3, -12, true, false, null, "text \u00e9 \ud83d\ude00 ä", {}], "k": "v"})";
  for (std::size_t size = 0; size < whole.size(); ++size) {
    const std::vector<char> part(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(size));
    EXPECT_TRUE(parseJSON({part.data(), part.size()}).isNil()) << size;
  }
  EXPECT_FALSE(parseJSON(whole).isNil());
}

TEST(JSONReading, AcceptsFiveHundredAndTwelveLevels) {
  for (const auto& [open, close, core] :
       {std::tuple{"[", "]", ""}, std::tuple{"[", "]", "1"}, std::tuple{"{\"a\":", "}", "1"}}) {
    EXPECT_FALSE(parsed(nested(512, open, close, core)).isNil()) << open;
    JSONError error;
    EXPECT_TRUE(parseJSON(nested(513, open, close, core), &error).isNil()) << open;
    EXPECT_EQ(error.reason, "more than 512 nested containers");
    EXPECT_EQ(error.offset, 512 * std::string_view(open).size());
  }
  EXPECT_TRUE(parsed(nested(1'000'000, "[", "")).isNil());
  // The limit is on depth, not on number.
  EXPECT_EQ(parsed("[" + nested(2000, "[],", "", "[]") + "]").array()->size(), 2001U);
}

TEST(JSONReading, OfDuplicateKeysTheLastValueWinsAtTheFirstPlace) {
  const struct {
    std::string_view text;
    std::string_view compact;
  } rows[] = {
      {R"({"a":1,"b":2,"a":3})", R"({"a":3,"b":2})"},
      {R"({"a":1,"\u0061":{"x":1,"x":2},"a":[1]})", R"({"a":[1]})"},
      {R"({"a key of more than fourteen bytes":1,"b":2,"a key of more than fourteen bytes":3})",
       R"({"a key of more than fourteen bytes":3,"b":2})"},
      {R"({"a":{"a":1},"b":{"a":1}})", R"({"a":{"a":1},"b":{"a":1}})"},
  };
  for (const auto& row : rows) EXPECT_EQ(written(parsed(row.text)), row.compact);

  std::string text = "{";
  for (int i = 0; i < 200; ++i)
    text += "\"k" + std::to_string(i % 100) + "\":" + std::to_string(i) + ",";
  const Value value = parsed(text + "\"k0\":-1}");
  ASSERT_EQ(value.dictionary()->size(), 100U);
  EXPECT_EQ(value.dictionary()->begin()->key(), "k0");
  EXPECT_EQ((*value.dictionary())["k0"], Value(-1));
  EXPECT_EQ((*value.dictionary())["k99"], Value(199));
}

}  // namespace
}  // namespace orvanta::testing
