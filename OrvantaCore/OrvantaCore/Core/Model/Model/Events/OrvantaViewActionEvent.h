#pragma once

#include "orvanta/Model/Events/OrvantaEvent.h"

namespace orvanta {

/// The user used a trackable control; `code` is its OrvantaTrackableActionInfo's.
class OrvantaViewActionEvent : public OrvantaEvent {
  ORVANTA_EVENT(OrvantaViewActionEvent, OrvantaEvent, "o:va")

  ORVANTA_READONLY("ea", copy, String, code)
  ORVANTA_READONLY("ed", assign, std::int64_t, actionType)

  ORVANTA_EVENT_INITIALIZER(initWithCode, eventWithCode, code, actionType)
};

}  // namespace orvanta
