#include "orvanta/Linux/MediaTypes.h"

#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <cstdint>
#include <cstdio>
#include <utility>

#include "orvanta/Foundation/CharacterSet.h"

namespace orvanta {

namespace {

struct Family {
  std::string_view name;
  std::uint64_t maxBytes;
};
constexpr Family kImage{"Image", 10'000'000};
constexpr Family kAudio{"Audio", 5'000'000};
constexpr Family kMovie{"Movie", 50'000'000};

struct MediaType {
  std::string_view identifier;
  const Family* family;         // null for what notifications do not show
  std::string_view mimeTypes;   // parted by spaces; servers send the first
  std::string_view extensions;  // parted by spaces
};
constexpr MediaType kTypes[] = {
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

std::string lowercased(std::string_view text) {
  std::string lower(text);
  for (char& c : lower) {
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  }
  return lower;
}

bool lists(std::string_view words, std::string_view word) {
  for (;;) {
    const auto space = words.find(' ');
    if (words.substr(0, space) == word) return !word.empty();
    if (space == std::string_view::npos) return false;
    words.remove_prefix(space + 1);
  }
}

/// The first type whose column lists the text, in whatever case.
const MediaType* typeWhere(std::string_view MediaType::*column, std::string_view text) {
  const std::string lower = lowercased(text);
  const auto* const found = std::find_if(std::begin(kTypes), std::end(kTypes),
                                         [&](const auto& t) { return lists(t.*column, lower); });
  return found == std::end(kTypes) ? nullptr : found;
}

std::string base32(std::string_view bytes) {
  constexpr std::string_view kAlphabet = "abcdefghkmnpqrstuvwxyz0123456789";
  std::string text;
  std::uint32_t bits = 0;
  unsigned count = 0;
  for (const char byte : bytes) {
    bits = bits << 8U | static_cast<unsigned char>(byte);
    for (count += 8; count >= 5; count -= 5) text += kAlphabet[bits >> (count - 5) & 31U];
  }
  if (count != 0) text += kAlphabet[bits << (5 - count) & 31U];
  return text;
}

std::string dynamicIdentifier(std::string_view mimeType) {
  constexpr CharacterSet kEscaped("\\:,=");
  std::string descriptor = "3=";
  for (const char c : lowercased(mimeType)) {
    if (kEscaped.contains(c)) descriptor += '\\';
    descriptor += c;
  }
  return "dyn.a" + base32(descriptor);
}

std::string uniqueIdentifier() {
  static std::atomic<unsigned long long> last = 0;
  char text[37];
  std::snprintf(text, sizeof text, "00000000-0000-4000-8000-%012llX", ++last & 0xFFFFFFFFFFFFU);
  return text;
}

/// The size of a regular file that may be read.
std::optional<std::uint64_t> readableSize(const Url& url) {
  const std::string path = url.path();
  struct stat status {};
  if (!url.isFileURL() || path.find('\0') != std::string::npos ||
      ::stat(path.c_str(), &status) != 0 || !S_ISREG(status.st_mode) ||
      ::access(path.c_str(), R_OK) != 0) {
    return std::nullopt;
  }
  return static_cast<std::uint64_t>(status.st_size);
}

UNNotificationAttachmentFactory::Result refused(int code, std::string_view text) {
  Ref<NSError> error = NSError::errorWithDomain("UNErrorDomain", code, text);
  return {nullptr, std::move(error)};
}

}  // namespace

std::optional<std::string> HostTypeIdentifiers::preferredIdentifierForMIMEType(
    const std::optional<std::string>& type) {
  if (!type) return std::nullopt;
  const MediaType* const known = typeWhere(&MediaType::mimeTypes, *type);
  return known != nullptr ? std::string(known->identifier) : dynamicIdentifier(*type);
}

std::optional<std::string> mimeTypeForExtension(std::string_view extension) {
  const MediaType* const type = typeWhere(&MediaType::extensions, extension);
  if (type == nullptr) return std::nullopt;
  return std::string(type->mimeTypes.substr(0, type->mimeTypes.find(' ')));
}

UNNotificationAttachmentFactory::Result HostAttachmentFactory::attachmentWithIdentifier(
    const std::string& identifier, const Url& url, const std::optional<std::string>& typeHint) {
  const std::optional<std::uint64_t> bytes = readableSize(url);
  if (!bytes) return refused(100, "Invalid attachment file URL");

  const std::string name = url.lastPathComponent();
  const auto dot = name.rfind('.');
  const MediaType* const type =
      typeHint ? typeWhere(&MediaType::identifier, *typeHint)
      : dot == std::string::npos
          ? nullptr
          : typeWhere(&MediaType::extensions, std::string_view(name).substr(dot + 1));
  if (type == nullptr || type->family == nullptr) {
    return refused(101, "Unrecognized attachment file type");
  }
  if (*bytes > type->family->maxBytes) return refused(102, "Invalid attachment file size");

  return {UNNotificationAttachment::attachmentWithParts(
              {.identifier = identifier.empty() ? uniqueIdentifier() : identifier,
               .url = url,
               .typeHint = typeHint,
               .type = std::string(type->identifier),
               .family = std::string(type->family->name),
               .bytes = *bytes}),
          nullptr};
}

}  // namespace orvanta
