#include "orvanta/Simulator/SimulatedAttachments.h"

#include <atomic>
#include <cstdio>

#include "orvanta/Simulator/UniformTypes.h"

namespace orvanta {

namespace {

/// Returns an identifier in the form of a UUID; the sequence is the same in every process.
std::string uniqueIdentifier() {
  static std::atomic<std::uint64_t> last = 0;
  const std::uint64_t number = ++last;
  char identifier[37];
  std::snprintf(identifier, sizeof identifier, "00000000-0000-4000-8000-%04X%08X",
                static_cast<unsigned>(number >> 32U & 0xFFFFU), static_cast<unsigned>(number));
  return identifier;
}

const UniformType* typeOfFile(const Url& url) {
  const std::string name = url.lastPathComponent();
  const auto dot = name.rfind('.');
  if (dot == std::string::npos) return nullptr;
  return typeWithExtension(std::string_view(name).substr(dot + 1));
}

UNNotificationAttachmentFactory::Result rejected(int code, std::string_view description) {
  return {nullptr, NSError::errorWithDomain("UNErrorDomain", code, description)};
}

}  // namespace

UNNotificationAttachmentFactory::Result SimulatedAttachments::attachmentWithIdentifier(
    const std::string& identifier, const Url& url, const std::optional<std::string>& typeHint) {
  const std::optional<std::uint64_t> bytes = files_.size(url);
  if (!bytes) return rejected(100, "Invalid attachment file URL");

  const UniformType* const type = typeHint ? typeWithIdentifier(*typeHint) : typeOfFile(url);
  if (type == nullptr || type->family == nullptr) {
    return rejected(101, "Unrecognized attachment file type");
  }
  if (*bytes > type->family->maxBytes) return rejected(102, "Invalid attachment file size");

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
