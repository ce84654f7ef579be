#pragma once

#include "orvanta/Model/Events/OrvantaEvent.h"

namespace orvanta {

/// The user canceled an order. Amounts are in the application's currency unit.
class OrvantaOrderCancelEvent : public OrvantaEvent {
  ORVANTA_EVENT(OrvantaOrderCancelEvent, OrvantaEvent, "o:co")

  ORVANTA_PROPERTY("er", assign, double, subTotal, setSubTotal)
  ORVANTA_PROPERTY("es", assign, double, grandTotal, setGrandTotal)
  ORVANTA_PROPERTY("ec", assign, std::uint64_t, itemCount, setItemCount)
  ORVANTA_PROPERTY("em", copy, String, paymentMethod, setPaymentMethod)

  ORVANTA_EVENT_INITIALIZER(initWithSubTotal, eventWithSubTotal, subTotal, grandTotal, itemCount)
};

}  // namespace orvanta
