#include <gtest/gtest.h>

#include <charconv>
#include <cmath>

#include "orvanta/Foundation/JSON.h"

namespace orvanta {
namespace {

std::string written(const Value& value) {
  std::string text;
  EXPECT_TRUE(writeJSON(value, text));
  return text;
}

TEST(JSONFastPaths, AmountsHaveTheShortestText) {
  const auto check = [](double number) {
    char text[40];
    const auto end = std::to_chars(text, std::end(text), number).ptr;
    EXPECT_EQ(written(number), std::string(text, end));
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

TEST(JSONFastPaths, TextsOfEveryLengthAreEscapedAtEveryPlace) {
  for (const int length : {0, 1, 3, 4, 7, 8, 9, 15, 16, 17, 511, 512, 513, 1100}) {
    const auto size = static_cast<std::size_t>(length);
    const std::string plain(size, 'x');
    EXPECT_EQ(written(plain), '"' + plain + '"');
    for (std::size_t place = 0; place < size; ++place) {
      std::string text = plain;
      std::string expected = plain;
      text[place] = '\x01';
      expected.replace(place, 1, "\\u0001");
      ASSERT_EQ(written(text), '"' + expected + '"') << size << ", " << place;
    }
  }
}

}  // namespace
}  // namespace orvanta
