#pragma once

#include "orvanta/Model/Actions/OrvantaAction.h"

namespace orvanta {

/// Sends an event; `eventData` is its dictionary.
class OrvantaSendEventAction : public OrvantaAction {
  ORVANTA_MODEL(OrvantaSendEventAction, OrvantaAction)

  ORVANTA_PROPERTY("event", strong, Dictionary, eventData, setEventData)
};

}  // namespace orvanta
