#pragma once

#include "orvanta/Model/Mapping/OrvantaBaseModel.h"
#include "orvanta/Model/Notifications/OrvantaUserNotificationAction.h"

namespace orvanta {

/// The buttons that a notification selects with "aps.category". Received in OrvantaAppConfig, or
/// built from the buttons in a payload.
class OrvantaUserNotificationCategory : public OrvantaBaseModel {
  ORVANTA_MODEL(OrvantaUserNotificationCategory, OrvantaBaseModel)

  /// OrvantaUserNotificationAction, in display order.
  ORVANTA_PROPERTY("ia", strong, MutableArray, actions, setActions, OrvantaUserNotificationAction)
  ORVANTA_PROPERTY("id", strong, String, identifier, setIdentifier)

  /// Returns the platform's category, with the actions in order. Skips elements that are not
  /// actions; an identifier that is not a string becomes the empty string.
  UNNotificationCategory category() const;
};

}  // namespace orvanta
