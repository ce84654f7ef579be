#pragma once

#include "orvanta/Model/Actions/OrvantaAction.h"

namespace orvanta {

/// Runs when the user taps a control of a widget.
class OrvantaWidgetAction : public OrvantaAction {
  ORVANTA_MODEL(OrvantaWidgetAction, OrvantaAction)

  ORVANTA_PROPERTY("uri", strong, Url, openURL, setOpenURL)
  ORVANTA_PROPERTY("app_manage", assign, bool, appManage, setAppManage)
  ORVANTA_PROPERTY("url", strong, Url, deeplinkURL, setDeeplinkURL)
  ORVANTA_PROPERTY("eventType", strong, String, eventType, setEventType)
};

}  // namespace orvanta
