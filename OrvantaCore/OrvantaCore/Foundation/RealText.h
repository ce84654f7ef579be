#pragma once

#include <charconv>
#include <cstddef>
#include <string>
#include <string_view>

// The decimal text of doubles, independent of the locale:
//
//     double value = 0.0;
//     if (!parseReal("12.5e3", value)) return;  // beyond the range of a double
//     char text[kMaxRealText];
//     std::string_view(text, printReal(value, text));  // "12500"
//     realWithDecimals(value, 2);                      // "12500.00"
//
// The functions are those of the C++ library where it has them for doubles. The platform's library
// has no std::from_chars for doubles, and its std::to_chars needs iOS 16.3; there, functions from
// the C library with the same results do the work.

namespace orvanta {

/// The most bytes that printReal writes.
inline constexpr std::size_t kMaxRealText = 32;

namespace portable {

/// Parses an optional minus, digits with at most one decimal point, and an optional exponent.
/// Returns false and leaves the value if the number is beyond the range of a double, or too small.
bool parseReal(std::string_view text, double& value) noexcept;
/// Writes the shortest text that parses to the same double; the number is finite. Returns the end.
char* printReal(double number, char* to) noexcept;
/// Formats like "%.*g".
std::string realWithDigits(double number, int digits);
/// Formats like "%.*f".
std::string realWithDecimals(double number, int decimals);

}  // namespace portable

#if defined(__cpp_lib_to_chars)

namespace library {

inline bool parseReal(std::string_view text, double& value) noexcept {
  return std::from_chars(text.data(), text.data() + text.size(), value).ec == std::errc{};
}

inline char* printReal(double number, char* to) noexcept {
  return std::to_chars(to, to + kMaxRealText, number).ptr;
}

inline std::string realWithDigits(double number, int digits) {
  char text[kMaxRealText];
  return {text,
          std::to_chars(text, std::end(text), number, std::chars_format::general, digits).ptr};
}

inline std::string realWithDecimals(double number, int decimals) {
  char text[400];  // the largest double has 309 digits before the point
  return {text,
          std::to_chars(text, std::end(text), number, std::chars_format::fixed, decimals).ptr};
}

}  // namespace library

using namespace library;  // NOLINT(google-build-using-namespace): one of two ways

#else

using namespace portable;  // NOLINT(google-build-using-namespace): one of two ways

#endif

}  // namespace orvanta
