#pragma once

#include "orvanta/Model/Events/OrvantaEvent.h"

namespace orvanta {

/// The user shared something.
class OrvantaShareEvent : public OrvantaEvent {
  ORVANTA_EVENT(OrvantaShareEvent, OrvantaEvent, "o:sh")

  ORVANTA_PROPERTY("ej", copy, String, channel, setChannel)
  ORVANTA_PROPERTY("ea", copy, String, content, setContent)

  ORVANTA_EVENT_INITIALIZER(initWithChannel, eventWithChannel, channel, content)
};

}  // namespace orvanta
