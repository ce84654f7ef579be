#pragma once

#include "orvanta/Platform/NSFileManager.h"
#include "orvanta/Platform/UIKit.h"
#include "orvanta/Platform/UserNotifications.h"
#include "orvanta/Simulator/Event.h"

namespace orvanta {

/// Decorates `Images`: records each lookup and each encoding that fails as an event.
class TracingImages final : public Images {
 public:
  TracingImages(Images& images, EventLog& log) : images_(images), log_(log) {}
  Ref<UIImage> imageNamed(std::string_view name) override;
  std::optional<std::string> JPEGRepresentation(const Ref<UIImage>& image,
                                                double compressionQuality) override;

 private:
  Images& images_;
  EventLog& log_;
};

/// Decorates a file manager: records each move.
class TracingFileManager final : public NSFileManager {
 public:
  TracingFileManager(NSFileManager& files, EventLog& log) : files_(files), log_(log) {}
  std::vector<Url> URLsForCachesDirectory() override { return files_.URLsForCachesDirectory(); }
  Ref<NSError> moveItemAtURL(const Url& source, const Url& destination) override;

 private:
  NSFileManager& files_;
  EventLog& log_;
};

/// Decorates an attachment factory: records each attachment.
class TracingAttachments final : public UNNotificationAttachmentFactory {
 public:
  TracingAttachments(UNNotificationAttachmentFactory& attachments, EventLog& log)
      : attachments_(attachments), log_(log) {}
  Result attachmentWithIdentifier(const std::string& identifier, const Url& url,
                                  const std::optional<std::string>& typeHint) override;

 private:
  UNNotificationAttachmentFactory& attachments_;
  EventLog& log_;
};

}  // namespace orvanta
