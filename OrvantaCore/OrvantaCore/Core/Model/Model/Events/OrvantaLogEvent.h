#pragma once

#include "orvanta/Model/Events/OrvantaEvent.h"

namespace orvanta {

/// A log entry of the application.
class OrvantaLogEvent : public OrvantaEvent {
  ORVANTA_EVENT(OrvantaLogEvent, OrvantaEvent, "o:log")

  ORVANTA_PROPERTY("ea", strong, String, tag, setTag)
  ORVANTA_PROPERTY("eb", strong, String, log, setLog)

  ORVANTA_EVENT_INITIALIZER(initWithLog, eventWithLog, log, tag)
};

}  // namespace orvanta
