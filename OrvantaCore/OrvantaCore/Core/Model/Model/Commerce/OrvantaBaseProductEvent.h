#pragma once

#include "orvanta/Model/Commerce/OrvantaProduct.h"
#include "orvanta/Model/Events/OrvantaEvent.h"

namespace orvanta {

/// Base of the events about a product. Its keys are mixed with the event's own on the wire.
class OrvantaBaseProductEvent : public OrvantaEvent {
  ORVANTA_ABSTRACT_EVENT(OrvantaBaseProductEvent, OrvantaEvent)

  ORVANTA_PROPERTY(kUnmapped, strong, OrvantaProduct, product, setProduct)

  ORVANTA_EVENT_INITIALIZER(initWithProduct, eventWithProduct, product)

  /// Reads the product from the whole dictionary first. If that fails, returns false and leaves the
  /// event's own properties unchanged.
  bool updateWithDictionary(const Dictionary* dictionary) override;
  /// Returns one flat dictionary; the event's entries win over the product's.
  Dictionary dictionaryValueWithPolicy(bool classInfo) const override;
};

}  // namespace orvanta
