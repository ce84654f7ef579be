#include "orvanta/Model/Notifications/OrvantaUserNotificationCategory.h"

namespace orvanta {

ORVANTA_IMPLEMENTATION(OrvantaUserNotificationCategory)

UNNotificationCategory OrvantaUserNotificationCategory::category() const {
  UNNotificationCategory category;
  category.identifier = identifier_.get().value_or("");
  if (const Array* actions = actions_.get()) {
    for (const Value& element : *actions) {
      if (const auto* action = element.as<OrvantaUserNotificationAction>()) {
        category.actions.push_back(action->interactiveAction());
      }
    }
  }
  return category;
}

}  // namespace orvanta
