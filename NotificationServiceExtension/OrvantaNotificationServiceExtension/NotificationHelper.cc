#include "OrvantaNotificationServiceExtension/NotificationHelper.h"

#include <algorithm>
#include <string>
#include <vector>

#include "Notifications/OrvantaUserNotificationCategory.h"
#include "Platform/Interface/NSBundle.h"
#include "Platform/Interface/Platform.h"

namespace orvanta {

static Ref<UNNotificationAction> foregroundAction(const char* identifier, const char* titleKey) {
  NSBundle* bundle = Platform::current().mainBundle();
  return UNNotificationAction::actionWithIdentifier(
      identifier, bundle != nullptr ? bundle->localizedStringForKey(titleKey) : titleKey,
      UNNotificationActionOptionForeground);
}

UNNotificationCategorySet NotificationHelper::setForCategories(const Array& categories) {
  UNNotificationCategorySet set;
  set.insert({"OrvantaCarousel",
              {foregroundAction("forward", "►►"), foregroundAction("goToApp", "Go To App 🚀")}});
  set.insert({"OrvantaGeneral", {}});
  for (const Value& element : categories) {
    if (const auto* category = element.as<OrvantaUserNotificationCategory>()) {
      set.insert(category->category());
    }
  }
  return set;
}

void NotificationHelper::requestNotificationAuthorizationForCategories(
    const UNNotificationCategorySet& categories,
    const std::shared_ptr<UNUserNotificationCenter>& center, const Completion& completion) {
  setNotificationCategories(categories, center, completion);
}

void NotificationHelper::setNotificationCategories(
    const UNNotificationCategorySet& categories,
    const std::shared_ptr<UNUserNotificationCenter>& center, const Completion& completion) {
  if (center == nullptr) return;
  center->getNotificationCategories(
      [categories, center, completion](const UNNotificationCategorySet& registered) {
        std::vector<UNNotificationCategory> merged;
        const auto enter = [&](const UNNotificationCategory& category) {
          const auto same = std::find_if(merged.begin(), merged.end(), [&](const auto& present) {
            return present.identifier == category.identifier;
          });
          if (same == merged.end()) {
            merged.push_back(category);
          } else {
            *same = category;
          }
        };
        for (const UNNotificationCategory& category : registered) enter(category);
        for (const UNNotificationCategory& category : categories) enter(category);
        UNNotificationCategorySet set;
        for (UNNotificationCategory& category : merged) set.insert(std::move(category));
        center->setNotificationCategories(set);
        if (completion) completion(true);
      });
}

}  // namespace orvanta
