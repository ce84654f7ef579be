#pragma once

#include "orvanta/Platform/UserNotifications.h"
#include "orvanta/Simulator/DeviceFiles.h"

namespace orvanta {

/// Makes attachments of the device's files with the platform's checks: existence, type and size.
/// Contents are not decoded.
class SimulatedAttachments final : public UNNotificationAttachmentFactory {
 public:
  explicit SimulatedAttachments(DeviceFiles& files) : files_(files) {}
  Result attachmentWithIdentifier(const std::string& identifier, const Url& url,
                                  const std::optional<std::string>& typeHint) override;

 private:
  DeviceFiles& files_;
};

}  // namespace orvanta
