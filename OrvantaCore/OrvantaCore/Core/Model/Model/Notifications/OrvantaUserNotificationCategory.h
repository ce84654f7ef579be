#pragma once

#include "orvanta/Model/Mapping/OrvantaBaseModel.h"
#include "orvanta/Model/Notifications/OrvantaUserNotificationAction.h"

namespace orvanta {

/// A set of buttons under the identifier by which a notification asks for them.
class OrvantaUserNotificationCategory : public OrvantaBaseModel {
  ORVANTA_MODEL(OrvantaUserNotificationCategory, OrvantaBaseModel)

  /// OrvantaUserNotificationAction in the order of display.
  ORVANTA_PROPERTY("ia", strong, MutableArray, actions, setActions, OrvantaUserNotificationAction)
  ORVANTA_PROPERTY("id", strong, String, identifier, setIdentifier)

  /// The platform's category: every action's platform action, in order. Elements that are no
  /// actions are passed over; an identifier that is no text is empty.
  UNNotificationCategory category() const;
};

}  // namespace orvanta
