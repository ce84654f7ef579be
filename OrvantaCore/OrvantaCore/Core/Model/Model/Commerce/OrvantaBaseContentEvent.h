#pragma once

#include "orvanta/Model/Commerce/OrvantaContent.h"
#include "orvanta/Model/Events/OrvantaEvent.h"

namespace orvanta {

/// Base of the events about a content. Its keys are mixed with the event's own on the wire.
class OrvantaBaseContentEvent : public OrvantaEvent {
  ORVANTA_ABSTRACT_EVENT(OrvantaBaseContentEvent, OrvantaEvent)

  ORVANTA_PROPERTY(kUnmapped, strong, OrvantaContent, content, setContent)

  ORVANTA_EVENT_INITIALIZER(initWithContent, eventWithContent, content)

  /// Reads the content from the whole dictionary first. If that fails, returns false and leaves the
  /// event's own properties unchanged.
  bool updateWithDictionary(const Dictionary* dictionary) override;
  /// Returns one flat dictionary; the event's entries win over the content's.
  Dictionary dictionaryValueWithPolicy(bool classInfo) const override;
};

}  // namespace orvanta
