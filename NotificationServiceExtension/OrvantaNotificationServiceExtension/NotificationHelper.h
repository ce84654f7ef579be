#pragma once

#include <functional>
#include <memory>

#include "orvanta/Foundation/Array.h"
#include "orvanta/Platform/UserNotifications.h"

namespace orvanta {

/// Builds notification categories and registers them with the center. Called by the extension
/// before its other steps, for a payload with buttons.
class NotificationHelper {
 public:
  /// Always receives true. May be empty.
  using Completion = std::function<void(bool)>;

  /// Returns the two fixed categories, "OrvantaCarousel" and "OrvantaGeneral", followed by the
  /// category of each OrvantaUserNotificationCategory in the array. Skips other elements.
  static UNNotificationCategorySet setForCategories(const Array& categories);

  /// Calls setNotificationCategories. Despite its name it does not ask the user for authorization.
  static void requestNotificationAuthorizationForCategories(
      const UNNotificationCategorySet& categories,
      const std::shared_ptr<UNUserNotificationCenter>& center, const Completion& completion);

  /// Merges the categories into the registered set: each replaces the registered category with the
  /// same identifier; all others stay. Calls the completion once, on the center's queue, after the
  /// write; never if the center is nullptr. Reading and writing is not atomic: of two concurrent
  /// merges the later write wins.
  static void setNotificationCategories(const UNNotificationCategorySet& categories,
                                        const std::shared_ptr<UNUserNotificationCenter>& center,
                                        const Completion& completion);
};

}  // namespace orvanta
