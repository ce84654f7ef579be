#pragma once

#include "orvanta/Model/Events/OrvantaEvent.h"

namespace orvanta {

/// A trackable screen appeared; `code` is its OrvantaTrackableScreenInfo's.
class OrvantaShowViewEvent : public OrvantaEvent {
  ORVANTA_EVENT(OrvantaShowViewEvent, OrvantaEvent, "o:shv")

  ORVANTA_READONLY("ea", copy, String, code)

  ORVANTA_EVENT_INITIALIZER(initWithCode, eventWithCode, code)
};

}  // namespace orvanta
