#pragma once

#include "orvanta/Model/Actions/OrvantaAction.h"

namespace orvanta {

/// Sends an event.
class OrvantaSendEventAction : public OrvantaAction {
  ORVANTA_MODEL(OrvantaSendEventAction, OrvantaAction)

  ORVANTA_PROPERTY("event", strong, Dictionary, eventData, setEventData)
};

}  // namespace orvanta
