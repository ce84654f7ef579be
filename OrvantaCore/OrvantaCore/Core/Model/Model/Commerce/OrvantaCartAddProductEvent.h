#pragma once

#include "orvanta/Model/Commerce/OrvantaBaseProductEvent.h"

namespace orvanta {

/// The user added a product to the cart. `basketTotal` is in the application's currency unit.
class OrvantaCartAddProductEvent : public OrvantaBaseProductEvent {
  ORVANTA_EVENT(OrvantaCartAddProductEvent, OrvantaBaseProductEvent, "o:acp")

  ORVANTA_PROPERTY("ec", assign, std::uint64_t, count, setCount)
  ORVANTA_PROPERTY("er", assign, double, basketTotal, setBasketTotal)

  ORVANTA_SUBSTITUTING_INITIALIZER(initWithProduct, eventWithProduct, (product), eventWithProduct,
                                   (count, basketTotal))
};

}  // namespace orvanta
