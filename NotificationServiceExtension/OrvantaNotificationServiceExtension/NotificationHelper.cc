#include "orvanta/NotificationService/NotificationHelper.h"

#include <string>
#include <vector>

#include "orvanta/Foundation/Number.h"
#include "orvanta/Model/Notifications/OrvantaUserNotificationCategory.h"
#include "orvanta/Platform/NSBundle.h"
#include "orvanta/Platform/Platform.h"

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
        Dictionary indices;  // identifier to index in `merged`
        const auto enter = [&](const UNNotificationCategory& category) {
          if (const auto index = indices[category.identifier].number()) {
            merged[static_cast<std::size_t>(index->unsignedLongLongValue())] = category;
          } else {
            indices.set(category.identifier, merged.size());
            merged.push_back(category);
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
