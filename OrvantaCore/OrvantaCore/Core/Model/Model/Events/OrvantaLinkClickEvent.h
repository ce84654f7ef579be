#pragma once

#include "orvanta/Model/Events/OrvantaEvent.h"

namespace orvanta {

/// The user followed a campaign link.
class OrvantaLinkClickEvent : public OrvantaEvent {
  ORVANTA_EVENT(OrvantaLinkClickEvent, OrvantaEvent, "o:lc")

  ORVANTA_PROPERTY("eg", copy, String, source, setSource)
  ORVANTA_PROPERTY("ea", copy, String, campaignId, setCampaignId)
  ORVANTA_PROPERTY("eb", copy, String, campaignName, setCampaignName)
  ORVANTA_PROPERTY("et", copy, String, medium, setMedium)
};

}  // namespace orvanta
