#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "orvanta/Foundation/RealText.h"
#include "support/Values.h"

namespace orvanta::testing {
namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

TEST(JSONWriting, WritesScalars) {
  const std::pair<Value, std::string_view> rows[] = {
      {true, "true"},
      {std::numeric_limits<std::int64_t>::min(), "-9223372036854775808"},
      {std::numeric_limits<std::uint64_t>::max(), "18446744073709551615"},
      {65.0, "65"},
      {-0.0, "-0.0"},
      {0.1 + 0.2, "0.30000000000000004"},
      {0.45F, "0.44999998807907104"},
      {1e-7, "1e-07"},
      {1500000000.123, "1500000000.123"},
      {"a/b", R"("a\/b")"},
      {"\"\\\b\f\n\r\t", R"("\"\\\b\f\n\r\t")"},
      {"\x01\x1F\x7F", "\"\\u0001\\u001f\x7F\""},
      {std::string(1, '\0'), R"("\u0000")"},
      {"\u00e9\u20ac\U0001F600\u2028", "\"\u00e9\u20ac\U0001F600\u2028\""},
  };
  for (const auto& [value, text] : rows) {
    EXPECT_EQ(toJSON(value), text);
    EXPECT_EQ(toPrettyJSON(value), text);
    EXPECT_EQ(parseJSON(text), value) << text;
  }
  EXPECT_EQ(toJSON("a/b", {.escapeSlashes = false}), R"("a/b")");
}

TEST(JSONWriting, DoublesReadBackAsTheSameNumber) {
  std::uint64_t state = 42;
  for (int i = 0; i < 20'000; ++i) {
    state = state * 6364136223846793005U + 1442695040888963407U;
    const auto number = std::bit_cast<double>(state ^ state >> 29U);
    if (!std::isfinite(number)) continue;
    const std::string text = toJSON(number);
    ASSERT_EQ(parseJSON(text).number()->doubleValue(), number) << text;
  }
}

TEST(JSONWriting, WritesAmountsWithTheFewestDigits) {
  const auto check = [](double number) {
    char text[kMaxRealText];
    EXPECT_EQ(toJSON(number), std::string(text, printReal(number, text)));
  };
  for (const double scale : {1.0, 1e3, 1e6, 1e9}) {
    for (int i = 1; i < 3000; i += 7) {
      const double amount = static_cast<double>(i) / 1000.0 * scale;
      for (const double number : {amount, std::nextafter(amount, 0.0), std::nextafter(amount, 1e9)})
        check(number);
    }
  }
  for (const double number : {0.0, 100'000.0, 1.1e6, 999'999'999'999.999, 1e12, 0x1p63, 5e-4}) {
    check(number);
    if (number != 0.0) check(-number);
  }
}

TEST(JSONWriting, EscapesAtEveryPlaceInStringsOfEveryLength) {
  for (const int length : {0, 1, 3, 4, 7, 8, 9, 15, 16, 17, 511, 512, 513, 1100}) {
    const auto size = static_cast<std::size_t>(length);
    const std::string plain(size, 'x');
    EXPECT_EQ(toJSON(plain), '"' + plain + '"');
    for (std::size_t place = 0; place < size; ++place) {
      std::string text = plain;
      std::string expected = plain;
      text[place] = '\x01';
      expected.replace(place, 1, "\\u0001");
      ASSERT_EQ(toJSON(text), '"' + expected + '"') << size << ", " << place;
    }
  }
}

TEST(JSONWriting, LaysOutContainers) {
  const std::pair<std::string_view, std::string_view> rows[] = {
      {"[]", "[\n\n]"},
      {"{}", "{\n\n}"},
      {"[1]", "[\n  1\n]"},
      {R"({"b":1,"a":[1,"x"]})", "{\n  \"b\" : 1,\n  \"a\" : [\n    1,\n    \"x\"\n  ]\n}"},
      {R"({"a":{},"b":[[],null]})",
       "{\n  \"a\" : {\n\n  },\n  \"b\" : [\n    [\n\n    ],\n    null\n  ]\n}"},
      {R"({"a\/b\n":{"c":true}})", "{\n  \"a\\/b\\n\" : {\n    \"c\" : true\n  }\n}"},
  };
  for (const auto& [compact, pretty] : rows) {
    const Value value = parseJSON(compact);
    EXPECT_EQ(toJSON(value), compact);
    EXPECT_EQ(toPrettyJSON(value), pretty);
    EXPECT_EQ(parseJSON(pretty), value);
    EXPECT_TRUE(isValidJSONObject(value));
  }
  std::string text = "before ";
  EXPECT_TRUE(writeJSON(Array({1}), text));
  EXPECT_EQ(text, "before [1]");
}

TEST(JSONWriting, RejectsWhatJSONCannotRepresent) {
  for (const Value& value :
       {Value(), Value(Date{}), Value(*Url::parse("a")), Value(Labeled::make(1)),
        Value(&Plain::kClass), Value(kNaN), Value(kInfinity), Value(-kInfinity),
        Value(std::numeric_limits<float>::infinity())}) {
    EXPECT_EQ(toJSON(value), "invalid") << describe(value);
    if (value.isNil()) continue;
    for (const Value& holder : {Value(Array({1, value})), Value(Dictionary({{"a", value}})),
                                Value(Array({Dictionary({{"a", Array({value})}})}))}) {
      EXPECT_EQ(toJSON(holder), "invalid") << describe(value);
      EXPECT_FALSE(isValidJSONObject(holder)) << describe(value);
    }
  }
}

TEST(JSONWriting, WritesUpTo512NestedContainers) {
  Value array = Array();
  Value dictionary = Dictionary();
  for (int depth = 1; depth < 512; ++depth) {
    array = Array({array});
    dictionary = Dictionary({{"a", dictionary}});
  }
  EXPECT_EQ(toJSON(array), nested(512, "[", "]"));
  EXPECT_TRUE(isValidJSONObject(array));
  EXPECT_TRUE(isValidJSONObject(dictionary));
  EXPECT_EQ(parseJSON(toJSON(dictionary)), dictionary);
  for (const Value& value : {Value(Array({array})), Value(Dictionary({{"a", dictionary}}))}) {
    EXPECT_EQ(toJSON(value), "invalid");
    EXPECT_FALSE(isValidJSONObject(value));
  }
  // Siblings do not add up.
  EXPECT_NE(toJSON(Array({(*array.array())[0], (*array.array())[0]})), "invalid");
}

}  // namespace
}  // namespace orvanta::testing
