#include <gtest/gtest.h>

#include <bit>
#include <clocale>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <limits>
#include <optional>
#include <vector>

#include "orvanta/Foundation/RealText.h"
#include "support/TemporaryFolder.h"

namespace orvanta::testing {
namespace {

std::string printed(double number) {
  char text[kMaxRealText];
  return {text, portable::printReal(number, text)};
}

std::optional<double> parsed(std::string_view text) {
  double value = 0.0;
  return portable::parseReal(text, value) ? std::optional(value) : std::nullopt;
}

/// Powers of two and ten and their neighbors, subnormals, amounts, and doubles of all bit patterns.
std::vector<double> sampleNumbers() {
  std::vector<double> numbers = {0.0, -0.0, std::numeric_limits<double>::denorm_min()};
  const auto addNeighbors = [&](double number) {
    numbers.insert(numbers.end(), {number, -number, std::nextafter(number, 0.0)});
    const double next = std::nextafter(number, 2 * number);
    if (std::isfinite(next)) numbers.push_back(next);
  };
  for (int exponent = -1074; exponent < 1024; ++exponent) addNeighbors(std::ldexp(1.0, exponent));
  double power = 1e-307;
  for (int exponent = -307; exponent <= 308; ++exponent, power *= 10) addNeighbors(power);
  for (int i = 1; i < 5'000; ++i) addNeighbors(i / 1000.0);
  std::uint64_t state = 42;
  while (numbers.size() < 130'000) {
    state = state * 6364136223846793005U + 1442695040888963407U;
    const std::uint64_t bits = state ^ state >> 29U;
    const bool isSubnormal = numbers.size() % 8 == 0;
    const auto number = std::bit_cast<double>(isSubnormal ? bits >> 13U : bits);
    if (std::isfinite(number)) numbers.push_back(number);
  }
  return numbers;
}

TEST(RealText, PrintsAndParsesLiterals) {
  const std::pair<double, std::string_view> rows[] = {
      {0.0, "0"},
      {-0.0, "-0"},
      {5e-324, "5e-324"},
      {-1.5, "-1.5"},
      {0.001, "0.001"},
      {1e-5, "1e-05"},
      {100'000.0, "1e+05"},
      {123'456.0, "123456"},
      {1e21, "1e+21"},
      {9007199254740993.0, "9007199254740992"},
      {0x1p-44, "5.684341886080802e-14"},  // the nearest of 16 digits, ...801e-14, is too low
      {1.7976931348623157e308, "1.7976931348623157e+308"},
  };
  for (const auto& [number, text] : rows) {
    EXPECT_EQ(printed(number), text);
    EXPECT_EQ(parsed(text), number);
  }
}

TEST(RealText, ParsesEveryFormAndRejectsNumbersOutOfRange) {
  const std::string many(800, '9');
  const std::string zeros(800, '0');
  const std::pair<std::string, std::optional<double>> rows[] = {
      {"5.", 5.0},
      {".5e1", 5.0},
      {"1E+2", 100.0},
      {"0." + many, 1.0},
      {many + "e-800", 1.0},
      {"1" + zeros + "e-800", 1.0},
      {"0." + zeros + "1e801", 1.0},
      {"-0e99999999999999999999", -0.0},
      {"9007199254740993", 9007199254740992.0},  // halfway: to even
      {"9007199254740993." + zeros + "1", 9007199254740994.0},
      {"2.4703282292062327e-324", std::nullopt},  // less than half of the smallest
      {"2.4703282292062328e-324", 5e-324},
      {"1.7976931348623158e308", 1.7976931348623157e308},
      {"1.7976931348623159e308", std::nullopt},
      {"1e99999999999999999999", std::nullopt},
      {"1e-99999999999999999999", std::nullopt},
      {many, std::nullopt},
  };
  for (const auto& [text, number] : rows) {
    EXPECT_EQ(parsed(text), number) << text;
    double value = 0.0;
    EXPECT_EQ(parseReal(text, value) ? std::optional(value) : std::nullopt, number) << text;
  }
}

/// Checks every way against every other for all sample numbers.
void expectSameTexts() {
  std::size_t index = 0;
  for (const double number : sampleNumbers()) {
    const std::string text = printed(number);
    ASSERT_EQ(parsed(text), number) << text;
    char other[kMaxRealText];
    ASSERT_EQ(std::string(other, printReal(number, other)), text);
    const std::string exact = portable::realWithDigits(number, 17);
    ASSERT_EQ(realWithDigits(number, 17), exact);
    ASSERT_EQ(parsed(exact), number) << exact;
    if (++index % 8 != 0) continue;
    for (const int digits : {6, 16}) {
      ASSERT_EQ(portable::realWithDigits(number, digits), realWithDigits(number, digits));
    }
    const std::string decimals = portable::realWithDecimals(number, 6);
    ASSERT_EQ(realWithDecimals(number, 6), decimals);
    for (const std::string& longer : {decimals, exact + "5", text + "e-3"}) {
      if (longer.find('e') != longer.rfind('e')) continue;
      double value = 0.0;
      ASSERT_EQ(parseReal(longer, value) ? std::optional(value) : std::nullopt, parsed(longer))
          << longer;
    }
  }
}

TEST(RealText, TheTwoWaysAgree) {
  expectSameTexts();
  const double infinity = std::numeric_limits<double>::infinity();
  for (const double number : {infinity, -infinity, std::nan(""), -std::nan("")}) {
    EXPECT_EQ(portable::realWithDigits(number, 16), realWithDigits(number, 16));
    EXPECT_EQ(portable::realWithDecimals(number, 6), realWithDecimals(number, 6));
  }
}

TEST(RealText, TheLocaleDoesNotMatter) {
  const TemporaryFolder folder;
  const std::string name = (folder.path() / "comma.UTF-8").string();
  const std::string command = "localedef -i de_DE -f UTF-8 '" + name + "' >/dev/null 2>&1";
  if (std::system(command.c_str()) != 0) GTEST_SKIP() << "localedef builds no German locale";
  ::setenv("LOCPATH", folder.path().c_str(), 1);
  ASSERT_NE(std::setlocale(LC_ALL, "comma.UTF-8"), nullptr);
  char text[8];
  std::snprintf(text, sizeof text, "%.1f", 0.5);
  EXPECT_STREQ(text, "0,5");
  expectSameTexts();
  std::setlocale(LC_ALL, "C");
}

}  // namespace
}  // namespace orvanta::testing
