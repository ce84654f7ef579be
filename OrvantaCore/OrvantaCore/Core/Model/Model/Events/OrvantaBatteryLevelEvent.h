#pragma once

#include "orvanta/Model/Events/OrvantaEvent.h"

namespace orvanta {

/// The battery reached a level that the configuration asks to report.
class OrvantaBatteryLevelEvent : public OrvantaEvent {
  ORVANTA_EVENT(OrvantaBatteryLevelEvent, OrvantaEvent, "o:bl")

  ORVANTA_PROPERTY("ec", assign, std::int32_t, batteryLevel, setBatteryLevel)

  ORVANTA_EVENT_INITIALIZER(initWithBatteryLevel, eventWithBatteryLevel, batteryLevel)
};

}  // namespace orvanta
