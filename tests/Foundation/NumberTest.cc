#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "support/Values.h"

namespace orvanta::testing {
namespace {

constexpr auto kInt64Max = std::numeric_limits<std::int64_t>::max();
constexpr auto kInt64Min = std::numeric_limits<std::int64_t>::min();
constexpr auto kUint64Max = std::numeric_limits<std::uint64_t>::max();
constexpr auto kInt32Max = std::numeric_limits<std::int32_t>::max();
constexpr auto kInt32Min = std::numeric_limits<std::int32_t>::min();
constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double kTwo63 = 9223372036854775808.0;
constexpr std::uint64_t kUnsignedTwo63 = std::uint64_t{1} << 63U;

TEST(Number, ConvertsWithoutFailing) {
  const struct {
    Value value;
    bool flag;
    std::int32_t narrow;
    std::int64_t wide;
    std::uint64_t unsignedWide;
  } rows[] = {
      {true, true, 1, 1, 1},
      {4294967297, true, 1, 4294967297, 4294967297U},  // the low 32 bits
      {kInt64Min, true, 0, kInt64Min, kUnsignedTwo63},
      {kUint64Max, true, -1, -1, kUint64Max},
      {-1.9, true, -1, -1, kUint64Max},
      {1500000000123.9, true, 1056413819, 1500000000123, 1500000000123U},
      {1e300, true, -1, kInt64Max, kUint64Max},
      {18446744073709551616.0, true, -1, kInt64Max, kUint64Max},
      {kInfinity, true, -1, kInt64Max, kUint64Max},
      {kNaN, true, 0, 0, 0},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(describe(row.value));
    const Number number = *row.value.number();
    EXPECT_EQ(number.boolValue(), row.flag);
    EXPECT_EQ(number.intValue(), row.narrow);
    EXPECT_EQ(number.longLongValue(), row.wide);
    EXPECT_EQ(number.unsignedLongLongValue(), row.unsignedWide);
  }
}

TEST(Number, EqualsByExactValueWhateverTheKind) {
  // Each row's numbers are equal among themselves and differ from every other row's.
  const std::vector<Value> rows[] = {
      {0, 0U, false, 0.0, 0.0F},
      {-0.0, -0.0F},
      {1, 1U, true, 1.0, 1.0F},
      {kInt64Max, static_cast<std::uint64_t>(kInt64Max)},
      {kTwo63, kUnsignedTwo63, 9223372036854775808.0F},
      {18446744073709551616.0, 18446744073709551616.0F},
      {9007199254740993, 9007199254740993U},
      {9007199254740992, 9007199254740992.0},
      {kNaN, -kNaN, std::numeric_limits<float>::quiet_NaN()},
  };
  for (const auto& row : rows) {
    for (const auto& other : rows) {
      for (const Value& a : row) {
        for (const Value& b : other) {
          EXPECT_EQ(a == b, &row == &other) << describe(a) << " and " << describe(b);
          if (&row == &other) {
            EXPECT_EQ(a.hash(), b.hash()) << describe(a);
          }
        }
      }
    }
  }
}

TEST(Number, IsDescribedByItsKind) {
  const std::pair<Value, std::string_view> rows[] = {
      {true, "1"},   {0.1 + 0.2, "0.3"}, {kTwo63, "9.223372036854776e+18"}, {1e-7, "1e-07"},
      {-0.0, "-0"},  {0.1F, "0.1"},      {16777216.0F, "1.677722e+07"},     {kInfinity, "inf"},
      {kNaN, "nan"},
  };
  for (const auto& [value, text] : rows) EXPECT_EQ(describe(value), text);
}

// ---- Strings as scalars ----

TEST(ScalarReading, ParsesIntegersFromStrings) {
  const struct {
    std::string_view text;
    std::int32_t narrow;
    std::int64_t wide;
    std::uint64_t unsignedWide;
  } rows[] = {
      {"", 0, 0, 0},
      {"+-5", 0, 0, 0},
      {" \t\n\v\f\r-7x", -7, -7, kUint64Max - 6},
      {"\u00a07", 0, 0, 0},  // a no-break space does not count as white space
      {"0x1F", 0, 0, 0},
      {"1e3", 1, 1, 1},
      {"2147483647", kInt32Max, 2147483647, 2147483647},
      {"-2147483649", kInt32Min, -2147483649, kUint64Max - 2147483648},
      {"9223372036854775808", kInt32Max, kInt64Max, kUnsignedTwo63},
      {"-9223372036854775808", kInt32Min, kInt64Min, kUnsignedTwo63},
      {"-9223372036854775809", kInt32Min, kInt64Min, kUnsignedTwo63},
      {"18446744073709551615", kInt32Max, kInt64Max, kUint64Max},
      {"18446744073709551616", kInt32Max, kInt64Max, kUint64Max},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.text);
    EXPECT_EQ(scalarReading<std::int32_t>(row.text), row.narrow);
    EXPECT_EQ(scalarReading<std::int64_t>(row.text), row.wide);
    EXPECT_EQ(scalarReading<std::uint64_t>(row.text), row.unsignedWide);
  }
}

TEST(ScalarReading, ParsesRealsFromStrings) {
  const std::pair<std::string, double> rows[] = {
      {"", 0.0},
      {"-abc", 0.0},  // without digits the sign is ignored
      {".", 0.0},
      {"--1", 0.0},
      {" \n+30.25kg", 30.25},
      {"1e-3x", 0.001},
      {"1e+", 1.0},
      {"1.e1", 10.0},
      {".5", 0.5},
      {"-0", -0.0},
      {"0x10", 0.0},
      {"inf", 0.0},
      {"1e400", kInfinity},
      {"1e99999999999999999999", kInfinity},
      {"-1e-99999999999999999999", -0.0},
      {"0e400", 0.0},
      {std::string(400, '9'), kInfinity},
      {"0." + std::string(400, '0') + "1e401", 1.0},
      {"0." + std::string(400, '0') + "1", 0.0},
      {"1" + std::string(400, '0') + "e-400", 1.0},
      {"0.1000000000000000055511151231257827021181583404541015625", 0.1},
  };
  for (const auto& [text, expected] : rows) {
    SCOPED_TRACE(text);
    const double value = scalarReading<double>(text);
    EXPECT_EQ(value, expected);
    EXPECT_EQ(std::signbit(value), std::signbit(expected));
  }
  EXPECT_EQ(scalarReading<float>("-1e39"), -std::numeric_limits<float>::infinity());
}

TEST(ScalarReading, ParsesBooleansFromStrings) {
  for (const std::string_view text :
       {"yes", "Y", "true", "Tx", "1", "9", " \t+007", "-2", "0001x", "00y", "-Y"}) {
    EXPECT_TRUE(scalarReading<bool>(text)) << text;
  }
  for (const std::string_view text :
       {"", "0", "00", "no", "on", "False", "+", "-0", "0.5", "+ 1", "x1", "\u00a01"}) {
    EXPECT_FALSE(scalarReading<bool>(text)) << text;
  }
}

}  // namespace
}  // namespace orvanta::testing
