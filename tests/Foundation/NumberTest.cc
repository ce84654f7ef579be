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
      {false, false, 0, 0, 0},
      {true, true, 1, 1, 1},
      {-1, true, -1, -1, kUint64Max},
      {4294967297, true, 1, 4294967297, 4294967297U},  // the low 32 bits
      {kInt64Min, true, 0, kInt64Min, kUnsignedTwo63},
      {kUint64Max, true, -1, -1, kUint64Max},
      {0.5, true, 0, 0, 0},
      {-0.0, false, 0, 0, 0},
      {-1.9, true, -1, -1, kUint64Max},
      {1500000000123.9, true, 1056413819, 1500000000123, 1500000000123U},
      {kTwo63, true, -1, kInt64Max, kUnsignedTwo63},
      {-kTwo63, true, 0, kInt64Min, kUnsignedTwo63},
      {1e300, true, -1, kInt64Max, kUint64Max},
      {-1e300, true, 0, kInt64Min, kUnsignedTwo63},
      {18446744073709549568.0, true, -1, kInt64Max, 18446744073709549568U},
      {18446744073709551616.0, true, -1, kInt64Max, kUint64Max},
      {kInfinity, true, -1, kInt64Max, kUint64Max},
      {kNaN, true, 0, 0, 0},
      {2.75F, true, 2, 2, 2},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(describe(row.value));
    const Number number = *row.value.number();
    EXPECT_EQ(number.boolValue(), row.flag);
    EXPECT_EQ(number.intValue(), row.narrow);
    EXPECT_EQ(number.longLongValue(), row.wide);
    EXPECT_EQ(number.unsignedLongLongValue(), row.unsignedWide);
    EXPECT_EQ(scalarReading<bool>(row.value), row.flag);
    EXPECT_EQ(scalarReading<std::int32_t>(row.value), row.narrow);
    EXPECT_EQ(scalarReading<std::int64_t>(row.value), row.wide);
    EXPECT_EQ(scalarReading<std::uint64_t>(row.value), row.unsignedWide);
  }
}

TEST(Number, ConvertsToFloatingPoint) {
  constexpr float kFloatMax = std::numeric_limits<float>::max();
  const struct {
    Value value;
    double real;
    float real32;
  } rows[] = {
      {true, 1.0, 1.0F},
      {-7, -7.0, -7.0F},
      {kUint64Max, 18446744073709551616.0, 18446744073709551616.0F},
      {0.1, 0.1, 0.1F},
      {0.1F, 0.10000000149011612, 0.1F},
      {3.4028235677973362e+38, 3.4028235677973362e+38, kFloatMax},  // just below halfway
      {3.4028235677973366e+38, 3.4028235677973366e+38, std::numeric_limits<float>::infinity()},
      {-1e300, -1e300, -std::numeric_limits<float>::infinity()},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(describe(row.value));
    EXPECT_EQ(row.value.number()->doubleValue(), row.real);
    EXPECT_EQ(row.value.number()->floatValue(), row.real32);
    EXPECT_EQ(scalarReading<double>(row.value), row.real);
    EXPECT_EQ(scalarReading<float>(row.value), row.real32);
  }
  EXPECT_TRUE(std::isnan(Value(kNaN).number()->floatValue()));
}

TEST(Number, EqualsByExactValueWhateverTheKind) {
  // Each row's numbers are equal among themselves and differ from every other row's.
  const std::vector<Value> rows[] = {
      {0, 0U, false, 0.0, 0.0F},
      {-0.0, -0.0F},
      {1, 1U, true, 1.0, 1.0F},
      {-1, -1.0, -1.0F},
      {0.5, 0.5F},
      {0.1},
      {0.1F, 0.10000000149011612},
      {kInt64Max, static_cast<std::uint64_t>(kInt64Max)},
      {kTwo63, kUnsignedTwo63, 9223372036854775808.0F},
      {kInt64Min, -kTwo63, -9223372036854775808.0F},
      {kUint64Max},
      {18446744073709551616.0, 18446744073709551616.0F},
      {9007199254740993, 9007199254740993U},
      {9007199254740992, 9007199254740992.0},
      {kInfinity, std::numeric_limits<float>::infinity()},
      {-kInfinity},
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
  const struct {
    Value value;
    std::string_view text;
  } rows[] = {
      {true, "1"},
      {false, "0"},
      {kInt64Min, "-9223372036854775808"},
      {kUint64Max, "18446744073709551615"},
      {0.1, "0.1"},
      {0.1 + 0.2, "0.3"},
      {98.40000000000001, "98.40000000000001"},
      {1e21, "1e+21"},
      {kTwo63, "9.223372036854776e+18"},
      {65.0, "65"},
      {1e-7, "1e-07"},
      {-0.0, "-0"},
      {0.1F, "0.1"},
      {16777216.0F, "1.677722e+07"},
      {kInfinity, "inf"},
      {-kInfinity, "-inf"},
      {kNaN, "nan"},
      {-kNaN, "nan"},
  };
  for (const auto& row : rows) EXPECT_EQ(describe(row.value), row.text);
}

TEST(Number, OnlyAnIntegerMarksAnUnsetOne) {
  EXPECT_TRUE(isUnsetInteger(kUnsetInteger));
  EXPECT_TRUE(isUnsetInteger(static_cast<std::uint64_t>(kUnsetInteger)));
  for (const Value& value : {Value(kTwo63), Value(kUnsetInteger - 1), Value(kUnsignedTwo63),
                             Value(), Value(true), Value("9223372036854775807")}) {
    EXPECT_FALSE(isUnsetInteger(value)) << describe(value);
  }
}

// ---- Readings of text -----------------------------------------------------

TEST(ScalarReading, TakesIntegersOutOfText) {
  const struct {
    std::string_view text;
    std::int32_t narrow;
    std::int64_t wide;
    std::uint64_t unsignedWide;
  } rows[] = {
      {"", 0, 0, 0},
      {"abc", 0, 0, 0},
      {"-", 0, 0, 0},
      {"+-5", 0, 0, 0},
      {"- 5", 0, 0, 0},
      {"42", 42, 42, 42},
      {"+42", 42, 42, 42},
      {" \t\n\v\f\r-7x", -7, -7, kUint64Max - 6},
      {"\u00a07", 0, 0, 0},  // a no-break space is no white space
      {"007", 7, 7, 7},
      {"0x1F", 0, 0, 0},
      {"3.9", 3, 3, 3},
      {"1e3", 1, 1, 1},
      {"1,5", 1, 1, 1},
      {"2147483640", 2147483640, 2147483640, 2147483640},
      {"2147483647", kInt32Max, 2147483647, 2147483647},
      {"2147483648", kInt32Max, 2147483648, 2147483648},
      {"-2147483648", kInt32Min, -2147483648, kUint64Max - 2147483647},
      {"-2147483649", kInt32Min, -2147483649, kUint64Max - 2147483648},
      {"9223372036854775807", kInt32Max, kInt64Max, static_cast<std::uint64_t>(kInt64Max)},
      {"9223372036854775808", kInt32Max, kInt64Max, kUnsignedTwo63},
      {"-9223372036854775808", kInt32Min, kInt64Min, kUnsignedTwo63},
      {"-9223372036854775809", kInt32Min, kInt64Min, kUnsignedTwo63},
      {"18446744073709551610", kInt32Max, kInt64Max, kUint64Max - 5},
      {"18446744073709551615", kInt32Max, kInt64Max, kUint64Max},
      {"18446744073709551616", kInt32Max, kInt64Max, kUint64Max},
      {"-99999999999999999999999", kInt32Min, kInt64Min, kUnsignedTwo63},
      {"99999999999999999999999", kInt32Max, kInt64Max, kUint64Max},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.text);
    EXPECT_EQ(scalarReading<std::int32_t>(row.text), row.narrow);
    EXPECT_EQ(scalarReading<std::int64_t>(row.text), row.wide);
    EXPECT_EQ(scalarReading<std::uint64_t>(row.text), row.unsignedWide);
  }
}

TEST(ScalarReading, TakesRealsOutOfText) {
  const struct {
    std::string text;
    double value;
  } rows[] = {
      {"", 0.0},
      {"abc", 0.0},
      {"-abc", 0.0},  // no number, so no sign either
      {"-", 0.0},
      {".", 0.0},
      {"e5", 0.0},
      {"--1", 0.0},
      {"30", 30.0},
      {" \n+30.25kg", 30.25},
      {"1e3", 1000.0},
      {"1E+3", 1000.0},
      {"1e-3x", 0.001},
      {"1e", 1.0},
      {"1e+", 1.0},
      {"1.e1", 10.0},
      {".5", 0.5},
      {"-.5", -0.5},
      {"5.", 5.0},
      {"1,5", 1.0},
      {"1.2.3", 1.2},
      {"-0", -0.0},
      {"0x10", 0.0},
      {"inf", 0.0},
      {"Infinity", 0.0},
      {"nan", 0.0},
      {"-nan", 0.0},
      {"1e400", kInfinity},
      {"-1e400", -kInfinity},
      {"1e99999999999999999999", kInfinity},
      {"1e-400", 0.0},
      {"-1e-99999999999999999999", -0.0},
      {"0e400", 0.0},
      {"5e-324", 5e-324},
      {std::string(400, '9'), kInfinity},
      {"0." + std::string(400, '0') + "1e401", 1.0},
      {"0." + std::string(400, '0') + "1", 0.0},
      {"1" + std::string(400, '0') + "e-400", 1.0},
      {"0.1000000000000000055511151231257827021181583404541015625", 0.1},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.text);
    const double value = scalarReading<double>(row.text);
    EXPECT_EQ(value, row.value);
    EXPECT_EQ(std::signbit(value), std::signbit(row.value));
  }
  EXPECT_EQ(scalarReading<float>("0.1"), 0.1F);
  EXPECT_EQ(scalarReading<float>("-1e39"), -std::numeric_limits<float>::infinity());
}

TEST(ScalarReading, TakesBooleansOutOfText) {
  for (const std::string_view text :
       {"yes", "Y", "true", "Tx", "1", "9", " \t+007", "-2", "0001x", "00y", "-Y"}) {
    EXPECT_TRUE(scalarReading<bool>(text)) << text;
  }
  for (const std::string_view text :
       {"", "0", "00", "no", "on", "False", "+", "-0", "0.5", "+ 1", "x1", "\u00a01"}) {
    EXPECT_FALSE(scalarReading<bool>(text)) << text;
  }
}

TEST(ScalarReading, NamesWhatTheValueLacks) {
  const auto refusal = [](std::string_view className, std::string_view selector) {
    return "NSInvalidArgumentException: -[" + std::string(className) + " " + std::string(selector) +
           "]: unrecognized selector sent to instance";
  };
  for (const Value& value :
       {Value::null(), Value(Array()), Value(Dictionary()), Value(Date{}), Value(*Url::parse("1")),
        Value(Labelled::make(1)), Value(&Plain::kClass)}) {
    const std::string_view name = value.className();
    EXPECT_EQ(thrown([&] { scalarReading<bool>(value); }), refusal(name, "boolValue"));
    EXPECT_EQ(thrown([&] { scalarReading<std::int32_t>(value); }), refusal(name, "intValue"));
    EXPECT_EQ(thrown([&] { scalarReading<std::int64_t>(value); }), refusal(name, "longLongValue"));
    EXPECT_EQ(thrown([&] { scalarReading<std::uint64_t>(value); }),
              refusal(name, "unsignedLongLongValue"));
    EXPECT_EQ(thrown([&] { scalarReading<float>(value); }), refusal(name, "floatValue"));
    EXPECT_EQ(thrown([&] { scalarReading<double>(value); }), refusal(name, "doubleValue"));
  }
  EXPECT_EQ(thrown([] { scalarReading<bool>(Value()); }),
            "NSInvalidArgumentException: setNilValueForKey: could not set nil as the value of a "
            "scalar");
}

}  // namespace
}  // namespace orvanta::testing
