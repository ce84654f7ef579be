#pragma once

#include "orvanta/Model/Events/OrvantaEvent.h"

namespace orvanta {

/// The user tapped a banner.
class OrvantaBannerClickEvent : public OrvantaEvent {
  ORVANTA_EVENT(OrvantaBannerClickEvent, OrvantaEvent, "o:bc")

  ORVANTA_PROPERTY("ea", copy, String, bannerId, setBannerId)
  ORVANTA_PROPERTY("eg", strong, Array, keywords, setKeywords)

  ORVANTA_EVENT_INITIALIZER(initWithBannerId, eventWithBannerId, bannerId)
};

}  // namespace orvanta
