#pragma once

#include "orvanta/Model/Commerce/OrvantaBaseProductEvent.h"

namespace orvanta {

/// The user viewed a product.
class OrvantaProductViewEvent : public OrvantaBaseProductEvent {
  ORVANTA_EVENT(OrvantaProductViewEvent, OrvantaBaseProductEvent, "o:vp")

  ORVANTA_FACTORY(eventWithProduct, initWithProduct, product)
};

}  // namespace orvanta
