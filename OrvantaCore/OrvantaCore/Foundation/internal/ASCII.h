#pragma once

#include <string>
#include <string_view>

namespace orvanta {

constexpr char toLowerASCII(char c) {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

/// Returns a copy with ASCII letters in lower case; all other bytes stay.
inline std::string toLowerASCII(std::string_view string) {
  std::string lower(string);
  for (char& c : lower) c = toLowerASCII(c);
  return lower;
}

/// Returns the string without spaces, tabs and line ends at both ends.
constexpr std::string_view trimWhitespace(std::string_view string) {
  constexpr std::string_view kWhitespace = " \t\r\n";
  const auto first = string.find_first_not_of(kWhitespace);
  if (first == std::string_view::npos) return {};
  return string.substr(first, string.find_last_not_of(kWhitespace) - first + 1);
}

}  // namespace orvanta
