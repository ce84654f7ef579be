#pragma once

#include "orvanta/Model/Events/OrvantaEvent.h"

namespace orvanta {

/// An order was placed. Amounts are in the units that the caller counts in.
class OrvantaPurchaseEvent : public OrvantaEvent {
  ORVANTA_EVENT(OrvantaPurchaseEvent, OrvantaEvent, "o:ph")

  ORVANTA_PROPERTY("er", assign, double, subTotal, setSubTotal)
  ORVANTA_PROPERTY("es", assign, double, grandTotal, setGrandTotal)
  ORVANTA_PROPERTY("ec", assign, std::uint64_t, itemCount, setItemCount)
  ORVANTA_PROPERTY("fz", assign, std::uint64_t, productCount, setProductCount)
  /// Line items; dictionaries in an event that was read.
  ORVANTA_PROPERTY("items", strong, Array, lineItems, setLineItems)
  ORVANTA_PROPERTY("em", copy, String, paymentMethod, setPaymentMethod)
  ORVANTA_PROPERTY("ep", assign, double, shippingCost, setShippingCost)
  ORVANTA_PROPERTY("el", assign, double, discount, setDiscount)
  ORVANTA_PROPERTY("ek", copy, String, coupon, setCoupon)

  /// Counts the line items, and the products in them (modulo 2^64), and marks the shipping cost and
  /// the discount as not given.
  bool initWithSubTotal(double subTotal, double grandTotal, Held<Array> lineItems);
  static Ref<Self> eventWithSubTotal(double subTotal, double grandTotal, Held<Array> lineItems);
};

}  // namespace orvanta
