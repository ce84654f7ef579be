#include "orvanta/Linux/HTTPHeader.h"

#include <algorithm>
#include <array>

#include "orvanta/Foundation/CharacterSet.h"
#include "orvanta/Foundation/internal/ASCII.h"
#include "orvanta/Foundation/internal/UTF8.h"

namespace orvanta {

namespace {

constexpr CharacterSet kTokenCharacters = CharacterSet::alphanumerics().with("!#$%&'*+-.^_`|~");
constexpr std::size_t kMaxMIMENameLength = 127;  // RFC 6838

/// Whether a UTF-8 character is U+0000 to U+001F or U+007F to U+009F.
bool isControl(std::string_view character) {
  const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(character[i]); };
  if (character.size() == 1) return byte(0) < ' ' || byte(0) == 0x7F;
  return byte(0) == 0xC2 && byte(1) < 0xA0;
}

}  // namespace

std::string replaceUnprintable(std::string_view string) {
  std::string printable;
  printable.reserve(string.size());
  while (!string.empty()) {
    const std::size_t length = utf8CharacterLength(string);
    const std::string_view character = string.substr(0, std::max<std::size_t>(length, 1));
    if (length == 0 || isControl(character)) {
      printable.append(character.size(), '?');
    } else {
      printable += character;
    }
    string.remove_prefix(character.size());
  }
  return printable;
}

std::optional<std::string> mimeTypeOfHeader(std::string_view contentType) {
  const std::string_view type = trimWhitespace(contentType.substr(0, contentType.find(';')));
  const auto slash = type.find('/');
  if (slash == std::string_view::npos) return std::nullopt;
  for (const std::string_view name : {type.substr(0, slash), type.substr(slash + 1)}) {
    if (name.empty() || name.size() > kMaxMIMENameLength ||
        !std::all_of(name.begin(), name.end(),
                     [](char c) { return kTokenCharacters.contains(c); })) {
      return std::nullopt;
    }
  }
  return toLowerASCII(type);
}

bool hasSupportedCodings(std::string_view headerValue) {
  constexpr std::array<std::string_view, 6> kSupported{"",       "identity", "gzip",
                                                       "x-gzip", "deflate",  "chunked"};
  while (!headerValue.empty()) {
    const auto comma = std::min(headerValue.find(','), headerValue.size());
    const std::string coding = toLowerASCII(trimWhitespace(headerValue.substr(0, comma)));
    if (std::find(kSupported.begin(), kSupported.end(), coding) == kSupported.end()) return false;
    headerValue.remove_prefix(std::min(comma + 1, headerValue.size()));
  }
  return true;
}

}  // namespace orvanta
