#pragma once

#include "orvanta/Model/Commerce/OrvantaProduct.h"

namespace orvanta {

/// A product in a purchase, with its quantity.
class OrvantaLineItem : public OrvantaProduct {
  ORVANTA_MODEL(OrvantaLineItem, OrvantaProduct)

  ORVANTA_PROPERTY("ec", assign, std::uint64_t, count, setCount)
  ORVANTA_PROPERTY("ge", copy, String, campaignId, setCampaignId)

  ORVANTA_SUBSTITUTING_INITIALIZER(initWithId, productWithId, (productId, productName, price),
                                   itemWithId, (count))
};

}  // namespace orvanta
