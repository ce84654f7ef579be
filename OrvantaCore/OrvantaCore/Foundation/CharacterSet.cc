#include "Foundation/CharacterSet.h"

namespace orvanta {

std::string percentEncoded(std::string_view text, const CharacterSet& allowed) {
  constexpr std::string_view kDigits = "0123456789ABCDEF";
  std::string encoded;
  encoded.reserve(text.size());
  for (const char character : text) {
    if (allowed.contains(character)) {
      encoded += character;
    } else {
      const auto byte = static_cast<unsigned char>(character);
      encoded += {'%', kDigits[byte >> 4U], kDigits[byte & 15U]};
    }
  }
  return encoded;
}

}  // namespace orvanta
