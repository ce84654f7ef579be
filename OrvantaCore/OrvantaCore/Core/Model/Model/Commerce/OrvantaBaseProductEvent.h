#pragma once

#include "orvanta/Model/Commerce/OrvantaProduct.h"
#include "orvanta/Model/Events/OrvantaEvent.h"

namespace orvanta {

/// An event about a product, whose keys stand beside the event's own.
class OrvantaBaseProductEvent : public OrvantaEvent {
  ORVANTA_ABSTRACT_EVENT(OrvantaBaseProductEvent, OrvantaEvent)

  ORVANTA_PROPERTY(kUnmapped, strong, OrvantaProduct, product, setProduct)

  ORVANTA_EVENT_INITIALISER(initWithProduct, eventWithProduct, product)

  /// Makes the product of the whole dictionary first; when that refuses, so does the event, and its
  /// own fields stay as they were.
  bool updateWithDictionary(const Dictionary* dictionary) override;
  /// One flat dictionary, in which the event's entries stand over the product's.
  Dictionary dictionaryValueWithPolicy(bool classInfo) const override;
};

}  // namespace orvanta
