#pragma once

#include "orvanta/Model/Events/OrvantaEvent.h"

namespace orvanta {

/// The user viewed the cart. `subTotal` is in the application's currency unit.
class OrvantaCartViewEvent : public OrvantaEvent {
  ORVANTA_EVENT(OrvantaCartViewEvent, OrvantaEvent, "o:vt")

  ORVANTA_PROPERTY("er", assign, double, subTotal, setSubTotal)
  ORVANTA_PROPERTY("ec", assign, std::uint64_t, itemCount, setItemCount)

  ORVANTA_EVENT_INITIALIZER(initWithSubTotal, eventWithSubTotal, subTotal, itemCount)
};

}  // namespace orvanta
