#pragma once

#include "orvanta/Model/Mapping/OrvantaBaseModel.h"
#include "orvanta/Platform/UserNotifications.h"

namespace orvanta {

/// A button of an interactive notification. Received in push payloads ("_ov.ia") and in the
/// categories of OrvantaAppConfig.
class OrvantaUserNotificationAction : public OrvantaBaseModel {
  ORVANTA_MODEL(OrvantaUserNotificationAction, OrvantaBaseModel)

  /// Runs when the user taps the button; the dictionary of an OrvantaAction.
  ORVANTA_PROPERTY("act", strong, Dictionary, actionDictionary, setActionDictionary)
  ORVANTA_PROPERTY("prms", strong, Dictionary, customDictionary, setCustomDictionary)
  ORVANTA_READONLY("id", copy, String, identifier)
  ORVANTA_READONLY("text", copy, String, title)
  /// 0 opens the application (UNNotificationActionOptionForeground); other values do not.
  ORVANTA_READONLY("actM", assign, std::uint64_t, activationMode)
  ORVANTA_READONLY("dest", assign, bool, destructive)
  ORVANTA_READONLY("auth", assign, bool, authenticationRequired)
  /// 1 is a text-input button; other values are plain buttons.
  ORVANTA_READONLY("bhv", assign, std::uint64_t, behaviour)
  /// Returns a new platform action on each call. An identifier or title that is not a string
  /// becomes the empty string.
  Ref<UNNotificationAction> interactiveAction() const;
  ORVANTA_COMPUTED(
      kUnmapped, strong, "@\"UNNotificationAction\"", interactiveAction,
      [](const OrvantaBaseModel& o) -> Value {
        return static_cast<const Self&>(o).interactiveAction();
      },
      nullptr)
};

}  // namespace orvanta
