#include "orvanta/Model/Notifications/OrvantaUserNotificationAction.h"

namespace orvanta {

ORVANTA_IMPLEMENTATION(OrvantaUserNotificationAction)

Ref<UNNotificationAction> OrvantaUserNotificationAction::interactiveAction() const {
  unsigned options = authenticationRequired_ ? UNNotificationActionOptionAuthenticationRequired
                                             : UNNotificationActionOptionNone;
  if (destructive_) options |= UNNotificationActionOptionDestructive;
  if (activationMode_ == 0) options |= UNNotificationActionOptionForeground;
  std::string identifier(identifier_.get().value_or(""));
  std::string title(title_.get().value_or(""));
  constexpr std::uint64_t kTextInput = 1;
  if (behaviour_ == kTextInput) {
    return UNTextInputNotificationAction::actionWithIdentifier(std::move(identifier),
                                                               std::move(title), options);
  }
  return UNNotificationAction::actionWithIdentifier(std::move(identifier), std::move(title),
                                                    options);
}

}  // namespace orvanta
