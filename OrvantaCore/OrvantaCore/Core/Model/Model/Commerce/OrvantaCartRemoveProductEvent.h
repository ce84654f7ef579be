#pragma once

#include "orvanta/Model/Commerce/OrvantaBaseProductEvent.h"

namespace orvanta {

/// The user removed a product from the cart.
class OrvantaCartRemoveProductEvent : public OrvantaBaseProductEvent {
  ORVANTA_EVENT(OrvantaCartRemoveProductEvent, OrvantaBaseProductEvent, "o:rcp")

  ORVANTA_PROPERTY("ec", assign, std::uint64_t, count, setCount)

  ORVANTA_SUBSTITUTING_INITIALIZER(initWithProduct, eventWithProduct, (product), eventWithProduct,
                                   (count))
};

}  // namespace orvanta
