#include <gtest/gtest.h>

#include <limits>

#include "orvanta/Foundation/DecimalNumber.h"
#include "support/Values.h"

namespace orvanta::testing {
namespace {

DecimalNumber decimal(std::string_view text) {
  return DecimalNumber::decimalNumberWithString(text);
}

TEST(DecimalNumber, ReadsTheLongestPrefixAndWritesPlainDigits) {
  const std::string nines(38, '9');
  const std::pair<std::string, std::string> rows[] = {
      {"-0.00", "0"},
      {" \t+47.50x", "47.5"},
      {".5", "0.5"},
      {"47111700000000.123456789", "47111700000000.123456789"},
      {"1.5E-3", "0.0015"},
      {"1e+x", "1"},
      {"0x10", "0"},
      {"", "NaN"},
      {".", "NaN"},
      {nines + "9", nines + "0"},
      {"1" + nines + "5", "1" + std::string(37, '9') + "00"},
      {"0." + nines + "9", "0." + nines},
      {"1e165", "NaN"},
      {"1e-129", "0"},
      {"15e-129", "0." + std::string(127, '0') + "1"},
      {"1e99999999999999999999", "NaN"},
      {"1e-99999999999999999999", "0"},
  };
  for (const auto& [text, plain] : rows) {
    EXPECT_EQ(decimal(text).stringValue(), plain) << text;
    EXPECT_EQ(decimal(text).isNaN(), plain == "NaN") << text;
    EXPECT_EQ(decimal(decimal(text).stringValue()), decimal(text)) << text;
  }
}

TEST(DecimalNumber, ConvertsFromAndToIntegers) {
  constexpr auto kMax = std::numeric_limits<std::int64_t>::max();
  constexpr auto kMin = std::numeric_limits<std::int64_t>::min();
  for (const std::int64_t number :
       {std::int64_t{0}, std::int64_t{-1}, std::int64_t{6200}, kMax, kMin}) {
    EXPECT_EQ(DecimalNumber(number).longLongValue(), number);
    EXPECT_EQ(DecimalNumber(number).stringValue(), std::to_string(number));
  }
  EXPECT_EQ(decimal("9223372036854775808").longLongValue(), kMax);
  EXPECT_EQ(decimal("-1e127").longLongValue(), kMin);
  EXPECT_EQ(decimal("-1.9").longLongValue(), -1);
  EXPECT_EQ(DecimalNumber::notANumber().longLongValue(), 0);
}

TEST(DecimalNumber, CalculatesWithThirtyEightDigits) {
  const auto minus = &DecimalNumber::subtracting;
  const auto times = &DecimalNumber::multiplyingBy;
  const auto over = &DecimalNumber::dividingByRoundingDown;
  const std::string nines(38, '9');
  const struct {
    std::string a;
    decltype(minus) operation;
    std::string b;
    std::string result;
  } rows[] = {
      {"3", minus, "5", "-2"},
      {"1e20", minus, "1e-10", "99999999999999999999.9999999999"},
      {"123456789012345678901234", minus, "123456789012345678901233", "1"},
      {nines, minus, "-1", "1" + std::string(38, '0')},
      {nines, minus, "-" + nines, "1" + std::string(37, '9') + "0"},  // 39 digits, one dropped
      {"NaN", minus, "1", "NaN"},
      {"-0.5", times, "0.2", "-0.1"},
      {"0.2", times, "-0.5", "-0.1"},
      {"-2", times, "0", "0"},
      {"12345678901234567890", times, "98765432109876543210",
       "1219326311370217952237463801111263526900"},
      {nines, times, nines, std::string(37, '9') + "8" + std::string(38, '0')},
      {"1e100", times, "1e100", "NaN"},
      {"1e-100", times, "1e-100", "0"},
      {"NaN", times, "0", "NaN"},
      {"0", times, "NaN", "NaN"},
      // Division rounds toward minus infinity.
      {"-7", over, "2", "-4"},
      {"-7", over, "-2", "3"},
      {"-1e-128", over, "1e100", "-1"},
      {nines.substr(1) + "8", over, nines, "0"},
      {"1e30", over, nines + "e-20", "1000000000000"},
      {"1e60", over, "7", "142857142857142857142857142857142857140000000000000000000000"},
      {"-1e60", over, "7", "-142857142857142857142857142857142857150000000000000000000000"},
      {"1", over, "0", "NaN"},
      {"NaN", over, "1", "NaN"},
  };
  for (const auto& row : rows) {
    EXPECT_EQ((decimal(row.a).*row.operation)(decimal(row.b)).stringValue(), row.result)
        << row.a << ", " << row.b;
  }
}

TEST(DecimalNumber, MultipliesByAnyPowerOfTen) {
  EXPECT_EQ(decimal("47111700000000.123456789").multiplyingByPowerOf10(9).stringValue(),
            "47111700000000123456789");
  EXPECT_EQ(decimal("-5").multiplyingByPowerOf10(-3).stringValue(), "-0.005");
  EXPECT_TRUE(decimal("1").multiplyingByPowerOf10(std::numeric_limits<int>::max()).isNaN());
  EXPECT_EQ(decimal("1").multiplyingByPowerOf10(std::numeric_limits<int>::min()), DecimalNumber());
  EXPECT_TRUE(DecimalNumber::notANumber().multiplyingByPowerOf10(1).isNaN());
}

}  // namespace
}  // namespace orvanta::testing
