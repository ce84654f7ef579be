#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "orvanta/Platform/MobileCoreServices.h"

namespace orvanta {

/// A type identifier that the platform declares.
struct UniformType {
  /// What notifications show of one kind of media; the limit is the system's for attachments.
  struct Family {
    std::string_view name;  // "Image", "Audio" or "Movie"
    std::uint64_t maxBytes;
  };

  std::string_view identifier;
  const Family* family;         // null for what notifications do not show
  std::string_view mimeTypes;   // separated by spaces; servers send the first
  std::string_view extensions;  // separated by spaces
};

/// Return the first type with this identifier, MIME type or file name extension, in whatever case;
/// null for none.
const UniformType* typeWithIdentifier(std::string_view identifier);
const UniformType* typeWithMIMEType(std::string_view mimeType);
const UniformType* typeWithExtension(std::string_view extension);

/// Returns the MIME type that a server would send for a file name extension, nothing when unknown.
std::optional<std::string> mimeTypeForExtension(std::string_view extension);

/// The identifiers that the platform declares for media and a few others, and dynamic ones, which
/// encode the MIME type as the platform does, for the rest.
class UniformTypes final : public TypeIdentifiers {
 public:
  std::optional<std::string> preferredIdentifierForMIMEType(
      const std::optional<std::string>& type) override;
};

}  // namespace orvanta
