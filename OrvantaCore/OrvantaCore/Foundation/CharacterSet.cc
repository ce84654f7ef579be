#include "orvanta/Foundation/CharacterSet.h"

#include <charconv>

namespace orvanta {

std::string percentEncoded(std::string_view string, const CharacterSet& allowed) {
  constexpr std::string_view kDigits = "0123456789ABCDEF";
  std::string encoded;
  encoded.reserve(string.size() + string.size() / 2);
  std::size_t plain = 0;  // start of the allowed characters that are not yet appended
  for (std::size_t i = 0; i < string.size(); ++i) {
    if (allowed.contains(string[i])) continue;
    const auto byte = static_cast<unsigned char>(string[i]);
    encoded.append(string, plain, i - plain);
    encoded += {'%', kDigits[byte >> 4U], kDigits[byte & 15U]};
    plain = i + 1;
  }
  return encoded.append(string, plain);
}

std::string percentDecoded(std::string_view string) {
  std::string decoded;
  for (std::size_t i = 0; i < string.size(); ++i) {
    unsigned byte = 0;
    const char* const digits = string.data() + i + 1;
    if (string[i] == '%' && string.size() - i > 2 &&
        std::from_chars(digits, digits + 2, byte, 16).ptr == digits + 2) {
      decoded += static_cast<char>(byte);
      i += 2;
    } else {
      decoded += string[i];
    }
  }
  return decoded;
}

}  // namespace orvanta
