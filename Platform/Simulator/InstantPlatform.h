#pragma once

#include <deque>
#include <functional>
#include <memory>

#include "orvanta/Platform/Intents.h"
#include "orvanta/Platform/MobileCoreServices.h"
#include "orvanta/Platform/NSBundle.h"
#include "orvanta/Platform/NSFileManager.h"
#include "orvanta/Platform/NSURLSession.h"
#include "orvanta/Platform/Platform.h"
#include "orvanta/Platform/UIKit.h"
#include "orvanta/Platform/UserNotifications.h"

namespace orvanta {

/// A platform on which everything succeeds and nothing leaves the memory, for running many
/// notifications: every download is a small JPEG file, every sender's image exists, and what is
/// registered or donated is dropped. Callbacks wait until `runAll`. For one thread.
class InstantPlatform final : public Platform {
 public:
  InstantPlatform();
  ~InstantPlatform() override;

  /// Runs the callbacks that wait, until none does.
  void runAll();

  std::shared_ptr<UNUserNotificationCenter> currentNotificationCenter() override;
  NSURLSession* sharedSession() override;
  NSFileManager* defaultManager() override;
  TypeIdentifiers* typeIdentifiers() override;
  UNNotificationAttachmentFactory* attachments() override;
  Images* images() override;
  Intents* intents() override;
  NSBundle* mainBundle() override;
  OperatingSystemVersion operatingSystemVersion() override { return {17, 0, 0}; }

 private:
  struct Services;
  std::unique_ptr<Services> services_;
};

}  // namespace orvanta
