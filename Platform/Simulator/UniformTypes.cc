#include "orvanta/Simulator/UniformTypes.h"

#include <algorithm>
#include <iterator>

#include "orvanta/Foundation/CharacterSet.h"
#include "orvanta/Foundation/internal/ASCII.h"

namespace orvanta {

namespace {

constexpr UniformType::Family kImage{"Image", 10'000'000};
constexpr UniformType::Family kAudio{"Audio", 5'000'000};
constexpr UniformType::Family kMovie{"Movie", 50'000'000};

constexpr UniformType kTypes[] = {
    {"public.jpeg", &kImage, "image/jpeg image/jpg", "jpg jpeg"},
    {"public.png", &kImage, "image/png", "png"},
    {"com.compuserve.gif", &kImage, "image/gif", "gif"},
    {"public.heic", nullptr, "image/heic", "heic"},
    {"public.heif", nullptr, "image/heif", "heif"},
    {"org.webmproject.webp", nullptr, "image/webp", "webp"},
    {"public.aiff-audio", &kAudio, "audio/aiff audio/x-aiff", "aif aiff"},
    {"com.microsoft.waveform-audio", &kAudio, "audio/wav audio/wave audio/x-wav audio/vnd.wave",
     "wav"},
    {"public.mp3", &kAudio, "audio/mpeg audio/mp3 audio/mpeg3 audio/mpg audio/x-mp3 audio/x-mpeg",
     "mp3"},
    {"public.mpeg-4-audio", &kAudio, "audio/mp4", ""},
    {"com.apple.m4a-audio", &kAudio, "audio/x-m4a audio/m4a", "m4a"},
    {"public.mpeg", &kMovie, "video/mpeg video/mpg video/x-mpeg", "mpg mpeg"},
    {"public.mpeg-2-video", &kMovie, "video/mpeg2", "m2v"},
    {"public.mpeg-4", &kMovie, "video/mp4 video/mp4v", "mp4"},
    {"public.avi", &kMovie, "video/x-msvideo video/avi video/msvideo", "avi"},
    {"com.apple.quicktime-movie", nullptr, "video/quicktime", "mov"},
    {"public.plain-text", nullptr, "text/plain", "txt"},
    {"public.html", nullptr, "text/html", "html"},
    {"public.json", nullptr, "application/json", "json"},
    {"com.adobe.pdf", nullptr, "application/pdf", "pdf"},
    {"public.data", nullptr, "application/octet-stream", ""},
};

bool lists(std::string_view words, std::string_view word) {
  for (;;) {
    const auto space = words.find(' ');
    if (words.substr(0, space) == word) return !word.empty();
    if (space == std::string_view::npos) return false;
    words.remove_prefix(space + 1);
  }
}

const UniformType* typeWhere(std::string_view UniformType::*column, std::string_view word) {
  const std::string lower = toLowerASCII(word);
  const auto* const type = std::find_if(std::begin(kTypes), std::end(kTypes),
                                        [&](const auto& row) { return lists(row.*column, lower); });
  return type == std::end(kTypes) ? nullptr : type;
}

std::string base32(std::string_view bytes) {
  constexpr std::string_view kAlphabet = "abcdefghkmnpqrstuvwxyz0123456789";
  std::string encoded;
  std::uint32_t bits = 0;
  unsigned count = 0;
  for (const char byte : bytes) {
    bits = bits << 8U | static_cast<unsigned char>(byte);
    for (count += 8; count >= 5; count -= 5) encoded += kAlphabet[bits >> (count - 5) & 31U];
  }
  if (count != 0) encoded += kAlphabet[bits << (5 - count) & 31U];
  return encoded;
}

std::string dynamicIdentifier(std::string_view mimeType) {
  constexpr CharacterSet kEscaped("\\:,=");
  std::string descriptor = "3=";
  for (const char c : toLowerASCII(mimeType)) {
    if (kEscaped.contains(c)) descriptor += '\\';
    descriptor += c;
  }
  return "dyn.a" + base32(descriptor);
}

}  // namespace

const UniformType* typeWithIdentifier(std::string_view identifier) {
  return typeWhere(&UniformType::identifier, identifier);
}
const UniformType* typeWithMIMEType(std::string_view mimeType) {
  return typeWhere(&UniformType::mimeTypes, mimeType);
}
const UniformType* typeWithExtension(std::string_view extension) {
  return typeWhere(&UniformType::extensions, extension);
}

std::optional<std::string> mimeTypeForExtension(std::string_view extension) {
  const UniformType* const type = typeWithExtension(extension);
  if (type == nullptr) return std::nullopt;
  return std::string(type->mimeTypes.substr(0, type->mimeTypes.find(' ')));
}

std::optional<std::string> UniformTypes::preferredIdentifierForMIMEType(
    const std::optional<std::string>& type) {
  if (!type) return std::nullopt;
  const UniformType* const known = typeWithMIMEType(*type);
  return known != nullptr ? std::string(known->identifier) : dynamicIdentifier(*type);
}

}  // namespace orvanta
