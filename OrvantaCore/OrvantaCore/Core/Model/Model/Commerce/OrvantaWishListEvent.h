#pragma once

#include "orvanta/Model/Commerce/OrvantaBaseProductEvent.h"

namespace orvanta {

/// The user added a product to the wish list.
class OrvantaWishListEvent : public OrvantaBaseProductEvent {
  ORVANTA_EVENT(OrvantaWishListEvent, OrvantaBaseProductEvent, "o:wl")

  ORVANTA_PROPERTY("ge", copy, String, campaignId, setCampaignId)

  ORVANTA_SUBSTITUTING_INITIALIZER(initWithProduct, eventWithProduct, (product), eventWithProduct,
                                   (campaignId))
};

}  // namespace orvanta
