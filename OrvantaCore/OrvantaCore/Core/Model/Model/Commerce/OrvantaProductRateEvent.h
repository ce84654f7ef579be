#pragma once

#include "orvanta/Model/Commerce/OrvantaBaseProductEvent.h"

namespace orvanta {

/// The user rated a product. The application defines the scale of `rating`.
class OrvantaProductRateEvent : public OrvantaBaseProductEvent {
  ORVANTA_EVENT(OrvantaProductRateEvent, OrvantaBaseProductEvent, "o:rp")

  ORVANTA_PROPERTY("eo", assign, std::uint64_t, rating, setRating)

  ORVANTA_SUBSTITUTING_INITIALIZER(initWithProduct, eventWithProduct, (product), eventWithProduct,
                                   (rating))
};

}  // namespace orvanta
