#pragma once

#include "orvanta/Model/Events/OrvantaEvent.h"

namespace orvanta {

/// A screen appeared on a test device.
class OrvantaShowViewTestEvent : public OrvantaEvent {
  ORVANTA_EVENT(OrvantaShowViewTestEvent, OrvantaEvent, "o:shvt")

  ORVANTA_READONLY("eb", copy, String, path)

  ORVANTA_EVENT_INITIALIZER(initWithPath, eventWithPath, path)
};

}  // namespace orvanta
