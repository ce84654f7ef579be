#pragma once

#include "orvanta/Model/Mapping/OrvantaBaseModel.h"
#include "orvanta/Platform/UserNotifications.h"

namespace orvanta {

/// One button of an interactive notification.
class OrvantaUserNotificationAction : public OrvantaBaseModel {
  ORVANTA_MODEL(OrvantaUserNotificationAction, OrvantaBaseModel)

  /// The action to run when the button is tapped.
  ORVANTA_PROPERTY("act", strong, Dictionary, actionDictionary, setActionDictionary)
  ORVANTA_PROPERTY("prms", strong, Dictionary, customDictionary, setCustomDictionary)
  ORVANTA_READONLY("id", copy, String, identifier)
  ORVANTA_READONLY("text", copy, String, title)
  /// 0 brings the application to the foreground, anything else does not.
  ORVANTA_READONLY("actM", assign, std::uint64_t, activationMode)
  ORVANTA_READONLY("dest", assign, bool, destructive)
  ORVANTA_READONLY("auth", assign, bool, authenticationRequired)
  /// 1 takes text input, anything else is a plain button.
  ORVANTA_READONLY("bhv", assign, std::uint64_t, behaviour)
  /// The platform's action, made anew each time. An identifier or title that is no text is empty.
  Ref<UNNotificationAction> interactiveAction() const;
  ORVANTA_COMPUTED(
      kUnmapped, strong, "@\"UNNotificationAction\"", interactiveAction,
      [](const OrvantaBaseModel& o) -> Value {
        return static_cast<const Self&>(o).interactiveAction();
      },
      nullptr)
};

}  // namespace orvanta
