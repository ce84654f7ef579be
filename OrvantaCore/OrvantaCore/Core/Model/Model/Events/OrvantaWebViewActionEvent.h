#pragma once

#include "orvanta/Model/Events/OrvantaEvent.h"

namespace orvanta {

/// A web view reported something; its fields are free.
class OrvantaWebViewActionEvent : public OrvantaEvent {
  ORVANTA_EVENT(OrvantaWebViewActionEvent, OrvantaEvent, "o:rpa")

  ORVANTA_PROPERTY(kUnmapped, strong, Dictionary, eventData, setEventData)

  ORVANTA_EVENT_INITIALISER(initWithEventData, eventWithEventData, eventData)
  /// The whole dictionary becomes the event data; the five common keys are read besides.
  bool updateWithDictionary(const Dictionary* dictionary) override;
  /// The event data stands over the event's own entries, "code" and "klazz" included.
  Dictionary dictionaryValueWithPolicy(bool classInfo) const override;
};

}  // namespace orvanta
