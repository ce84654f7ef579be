#pragma once

#include "orvanta/Model/Events/OrvantaEvent.h"

namespace orvanta {

/// The user used a control on a test device.
class OrvantaViewActionTestEvent : public OrvantaEvent {
  ORVANTA_EVENT(OrvantaViewActionTestEvent, OrvantaEvent, "o:vat")

  ORVANTA_READONLY("eb", copy, String, path)
  ORVANTA_READONLY("ed", assign, std::int64_t, actionType)

  ORVANTA_EVENT_INITIALIZER(initWithPath, eventWithPath, path, actionType)
};

}  // namespace orvanta
