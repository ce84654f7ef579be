#pragma once

#include "orvanta/Model/Events/OrvantaEvent.h"

namespace orvanta {

/// The user opened the application.
class OrvantaOpenAppEvent : public OrvantaEvent {
  ORVANTA_EVENT(OrvantaOpenAppEvent, OrvantaEvent, "o:oa")

  std::int64_t priority() const override { return 1; }
};

}  // namespace orvanta
