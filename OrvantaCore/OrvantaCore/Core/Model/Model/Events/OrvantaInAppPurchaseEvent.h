#pragma once

#include "orvanta/Model/Events/OrvantaEvent.h"

namespace orvanta {

/// The user bought something inside the application. `price` is in `currency`.
class OrvantaInAppPurchaseEvent : public OrvantaEvent {
  ORVANTA_EVENT(OrvantaInAppPurchaseEvent, OrvantaEvent, "o:ip")

  ORVANTA_PROPERTY("ea", copy, String, productId, setProductId)
  ORVANTA_PROPERTY("eb", copy, String, productName, setProductName)
  ORVANTA_PROPERTY("ga", strong, Array, categoryIds, setCategoryIds)
  ORVANTA_PROPERTY("ef", strong, Array, categoryNames, setCategoryNames)
  ORVANTA_PROPERTY("eq", assign, double, price, setPrice)
  ORVANTA_PROPERTY("ec", assign, std::uint64_t, count, setCount)
  ORVANTA_PROPERTY("eg", strong, Array, keywords, setKeywords)
  ORVANTA_PROPERTY("ej", strong, String, currency, setCurrency)

  ORVANTA_EVENT_INITIALIZER(initWithId, eventWithId, productId, productName, price)
};

}  // namespace orvanta
