#pragma once

#include "orvanta/Model/Events/OrvantaEvent.h"

namespace orvanta {

/// The user placed an order. Amounts are in the application's currency unit; kNoAmount is unset.
class OrvantaPurchaseEvent : public OrvantaEvent {
  ORVANTA_EVENT(OrvantaPurchaseEvent, OrvantaEvent, "o:ph")

  ORVANTA_PROPERTY("er", assign, double, subTotal, setSubTotal)
  ORVANTA_PROPERTY("es", assign, double, grandTotal, setGrandTotal)
  ORVANTA_PROPERTY("ec", assign, std::uint64_t, itemCount, setItemCount)
  ORVANTA_PROPERTY("fz", assign, std::uint64_t, productCount, setProductCount)
  /// OrvantaLineItem; dictionaries in an event that was read without "klazz".
  ORVANTA_PROPERTY("items", strong, Array, lineItems, setLineItems)
  ORVANTA_PROPERTY("em", copy, String, paymentMethod, setPaymentMethod)
  ORVANTA_PROPERTY("ep", assign, double, shippingCost, setShippingCost)
  ORVANTA_PROPERTY("el", assign, double, discount, setDiscount)
  ORVANTA_PROPERTY("ek", copy, String, coupon, setCoupon)

  /// Sets `itemCount` to the number of line items, `productCount` to the sum of their quantities
  /// (modulo 2^64), and shipping cost and discount to kNoAmount.
  bool initWithSubTotal(double subTotal, double grandTotal, PropertyValue<Array> lineItems);
  static Ref<Self> eventWithSubTotal(double subTotal, double grandTotal,
                                     PropertyValue<Array> lineItems);
};

}  // namespace orvanta
