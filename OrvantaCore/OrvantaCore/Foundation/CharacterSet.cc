#include "orvanta/Foundation/CharacterSet.h"

#include <charconv>

namespace orvanta {

std::string percentEncoded(std::string_view text, const CharacterSet& allowed) {
  constexpr std::string_view kDigits = "0123456789ABCDEF";
  std::string encoded;
  encoded.reserve(text.size() + text.size() / 2);
  std::size_t plain = 0;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (allowed.contains(text[i])) continue;
    const auto byte = static_cast<unsigned char>(text[i]);
    encoded.append(text, plain, i - plain);
    encoded += {'%', kDigits[byte >> 4U], kDigits[byte & 15U]};
    plain = i + 1;
  }
  return encoded.append(text, plain);
}

std::string percentDecoded(std::string_view text) {
  std::string decoded;
  for (std::size_t i = 0; i < text.size(); ++i) {
    unsigned byte = 0;
    if (text[i] == '%' && text.size() - i > 2 &&
        std::from_chars(text.data() + i + 1, text.data() + i + 3, byte, 16).ptr ==
            text.data() + i + 3) {
      decoded += static_cast<char>(byte);
      i += 2;
    } else {
      decoded += text[i];
    }
  }
  return decoded;
}

}  // namespace orvanta
