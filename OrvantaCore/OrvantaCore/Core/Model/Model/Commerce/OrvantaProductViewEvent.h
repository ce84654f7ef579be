#pragma once

#include "orvanta/Model/Commerce/OrvantaBaseProductEvent.h"

namespace orvanta {

/// A product was looked at.
class OrvantaProductViewEvent : public OrvantaBaseProductEvent {
  ORVANTA_EVENT(OrvantaProductViewEvent, OrvantaBaseProductEvent, "o:vp")

  ORVANTA_FACTORY(eventWithProduct, initWithProduct, product)
};

}  // namespace orvanta
