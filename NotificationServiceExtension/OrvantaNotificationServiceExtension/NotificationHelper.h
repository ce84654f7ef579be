#pragma once

#include <functional>
#include <memory>

#include "orvanta/Foundation/Array.h"
#include "orvanta/Platform/UserNotifications.h"

namespace orvanta {

/// Builds categories and registers them.
class NotificationHelper {
 public:
  /// Told true, always; may be empty.
  using Completion = std::function<void(bool)>;

  /// The two fixed categories, "OrvantaCarousel" and "OrvantaGeneral", and then the category of
  /// every OrvantaUserNotificationCategory of the array.
  static UNNotificationCategorySet setForCategories(const Array& categories);

  /// Registers the categories. In spite of its name it asks the user for nothing.
  static void requestNotificationAuthorizationForCategories(
      const UNNotificationCategorySet& categories,
      const std::shared_ptr<UNUserNotificationCenter>& center, const Completion& completion);

  /// Merges the categories into those that are registered: one replaces another of the same
  /// identifier, all others stay. Completes on the center's queue. Without a center nothing
  /// happens, and the completion is never called. Two merges at a time may each read the old set;
  /// the later write wins.
  static void setNotificationCategories(const UNNotificationCategorySet& categories,
                                        const std::shared_ptr<UNUserNotificationCenter>& center,
                                        const Completion& completion);
};

}  // namespace orvanta
