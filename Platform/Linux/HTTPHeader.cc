#include "orvanta/Linux/HTTPHeader.h"

#include <algorithm>

#include "orvanta/Foundation/CharacterSet.h"

namespace orvanta {

namespace {

constexpr CharacterSet kTokenCharacters = CharacterSet::alphanumerics().with("!#$%&'*+-.^_`|~");
constexpr std::size_t kMaximumMIMEName = 127;  // RFC 6838

char lowered(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

/// The length of the UTF-8 character that a text begins with; 0 when there is none, or when it is a
/// control character.
std::size_t printableLength(std::string_view text) {
  const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
  const unsigned lead = byte(0);
  if (lead < 0x80) return lead < ' ' || lead == 0x7F ? 0 : 1;
  const std::size_t length = lead < 0xC2 ? 0 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
  if (length == 0 || lead > 0xF4 || text.size() < length) return 0;
  for (std::size_t i = 1; i < length; ++i) {
    if ((byte(i) & 0xC0) != 0x80) return 0;
  }
  const unsigned next = byte(1);
  const bool refused = (lead == 0xC2 && next < 0xA0) ||  // controls
                       (lead == 0xE0 && next < 0xA0) || (lead == 0xED && next > 0x9F) ||
                       (lead == 0xF0 && next < 0x90) || (lead == 0xF4 && next > 0x8F);
  return refused ? 0 : length;
}

}  // namespace

std::string lowered(std::string_view text) {
  std::string lower(text);
  std::transform(lower.begin(), lower.end(), lower.begin(), [](char c) { return lowered(c); });
  return lower;
}

std::string_view trimmed(std::string_view text) {
  const auto first = text.find_first_not_of(" \t\r\n");
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(" \t\r\n") - first + 1);
}

std::string printable(std::string_view text) {
  std::string harmless;
  harmless.reserve(text.size());
  while (!text.empty()) {
    const std::size_t length = printableLength(text);
    length == 0 ? harmless += '?' : harmless += text.substr(0, length);
    text.remove_prefix(std::max<std::size_t>(length, 1));
  }
  return harmless;
}

std::optional<std::string> mimeTypeOfHeader(std::string_view contentType) {
  const std::string_view type = trimmed(contentType.substr(0, contentType.find(';')));
  const auto slash = type.find('/');
  if (slash == std::string_view::npos) return std::nullopt;
  for (const std::string_view name : {type.substr(0, slash), type.substr(slash + 1)}) {
    if (name.empty() || name.size() > kMaximumMIMEName ||
        !std::all_of(name.begin(), name.end(),
                     [](char c) { return kTokenCharacters.contains(c); })) {
      return std::nullopt;
    }
  }
  return lowered(type);
}

}  // namespace orvanta
