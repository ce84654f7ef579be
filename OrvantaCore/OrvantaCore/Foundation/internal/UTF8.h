#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace orvanta {

/// Returns the length of the UTF-8 character at the start of a string, which is not empty; 0 if the
/// start is not UTF-8. Overlong forms, surrogates and code points above U+10FFFF are not UTF-8.
constexpr std::size_t utf8CharacterLength(std::string_view string) {
  const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(string[i]); };
  const unsigned char lead = byte(0);
  if (lead < 0x80) return 1;
  const std::size_t length = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
  if (lead < 0xC2 || lead > 0xF4 || string.size() < length) return 0;
  // The second byte's bounds exclude what the lead byte alone does not.
  const unsigned char lowest = lead == 0xE0 ? 0xA0 : lead == 0xF0 ? 0x90 : 0x80;
  const unsigned char highest = lead == 0xED ? 0x9F : lead == 0xF4 ? 0x8F : 0xBF;
  if (byte(1) < lowest || byte(1) > highest) return 0;
  for (std::size_t i = 2; i < length; ++i) {
    if ((byte(i) & 0xC0U) != 0x80) return 0;
  }
  return length;
}

/// Appends a code point, which must not be a surrogate, as UTF-8.
inline void appendUTF8(std::string& string, std::uint32_t codePoint) {
  const auto byte = [&](std::uint32_t bits) { string += static_cast<char>(bits); };
  const auto trail = [&](unsigned shift) { byte(0x80U | (codePoint >> shift & 0x3FU)); };
  if (codePoint < 0x80) {
    byte(codePoint);
  } else if (codePoint < 0x800) {
    byte(0xC0U | codePoint >> 6U), trail(0);
  } else if (codePoint < 0x10000) {
    byte(0xE0U | codePoint >> 12U), trail(6), trail(0);
  } else {
    byte(0xF0U | codePoint >> 18U), trail(12), trail(6), trail(0);
  }
}

}  // namespace orvanta
