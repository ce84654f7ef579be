#include "orvanta/Platform/UserNotifications.h"

#include <algorithm>

namespace orvanta {

namespace {

/// Returns a string that is equal for equal categories only.
std::string identityOf(const UNNotificationCategory& category) {
  std::string identity;
  const auto add = [&identity](std::string_view field) {
    identity.append(std::to_string(field.size())).append(":").append(field);
  };
  add(category.identifier);
  add(std::to_string(reinterpret_cast<std::uintptr_t>(category.platformObject.get())));
  for (const Ref<UNNotificationAction>& action : category.actions) {
    add(action->takesText() ? "text" : "");
    add(action->identifier());
    add(action->title());
    add(std::to_string(action->options()));
  }
  return identity;
}

}  // namespace

std::string UNNotificationAttachment::description() const {
  return "<UNNotificationAttachment; identifier: " + parts_.identifier +
         ", family: " + parts_.family + ", URL: " + std::string(parts_.url.absoluteString()) +
         ", type: " + parts_.type + ", options: <UN" + parts_.family +
         "NotificationAttachmentOptions>>";
}

bool UNNotificationAction::isEqual(const Value& other) const {
  const auto* action = other.as<UNNotificationAction>();
  return action != nullptr && takesText() == action->takesText() &&
         identifier_ == action->identifier_ && title_ == action->title_ &&
         options_ == action->options_;
}

bool operator==(const UNNotificationCategory& a, const UNNotificationCategory& b) {
  return a.identifier == b.identifier && a.platformObject == b.platformObject &&
         std::equal(a.actions.begin(), a.actions.end(), b.actions.begin(), b.actions.end(),
                    [](const auto& x, const auto& y) { return x->isEqual(Value(y)); });
}

void UNNotificationCategorySet::insert(UNNotificationCategory category) {
  const std::string identity = identityOf(category);
  if (present_.contains(identity)) return;
  present_.set(identity, true);
  categories_.push_back(std::move(category));
}

}  // namespace orvanta
