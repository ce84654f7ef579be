#pragma once

#include "orvanta/Model/Commerce/OrvantaBaseProductEvent.h"

namespace orvanta {

/// A product was commented on.
class OrvantaProductCommentEvent : public OrvantaBaseProductEvent {
  ORVANTA_EVENT(OrvantaProductCommentEvent, OrvantaBaseProductEvent, "o:cp")

  ORVANTA_FACTORY(eventWithProduct, initWithProduct, product)
};

}  // namespace orvanta
