#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

#include "orvanta/Platform/MobileCoreServices.h"
#include "orvanta/Platform/UserNotifications.h"

namespace orvanta {

/// The type identifiers that the platform declares for media and a few others; dynamic ones for the
/// rest.
class HostTypeIdentifiers final : public TypeIdentifiers {
 public:
  std::optional<std::string> preferredIdentifierForMIMEType(
      const std::optional<std::string>& type) override;
};

/// The MIME type of a file by its name's extension, as a server would send it; none when unknown.
std::optional<std::string> mimeTypeForExtension(std::string_view extension);

/// Makes attachments of files, with the platform's checks: existence, type and size. The content is
/// not decoded.
class HostAttachmentFactory final : public UNNotificationAttachmentFactory {
 public:
  Result attachmentWithIdentifier(const std::string& identifier, const Url& url,
                                  const std::optional<std::string>& typeHint) override;
};

}  // namespace orvanta
