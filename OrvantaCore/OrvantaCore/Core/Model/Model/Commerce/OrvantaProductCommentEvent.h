#pragma once

#include "orvanta/Model/Commerce/OrvantaBaseProductEvent.h"

namespace orvanta {

/// The user commented on a product.
class OrvantaProductCommentEvent : public OrvantaBaseProductEvent {
  ORVANTA_EVENT(OrvantaProductCommentEvent, OrvantaBaseProductEvent, "o:cp")

  ORVANTA_FACTORY(eventWithProduct, initWithProduct, product)
};

}  // namespace orvanta
