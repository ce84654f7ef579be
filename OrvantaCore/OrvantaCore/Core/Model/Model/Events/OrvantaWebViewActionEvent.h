#pragma once

#include "orvanta/Model/Events/OrvantaEvent.h"

namespace orvanta {

/// An event of a web view, with free-form data.
class OrvantaWebViewActionEvent : public OrvantaEvent {
  ORVANTA_EVENT(OrvantaWebViewActionEvent, OrvantaEvent, "o:rpa")

  ORVANTA_PROPERTY(kUnmapped, strong, Dictionary, eventData, setEventData)

  ORVANTA_EVENT_INITIALIZER(initWithEventData, eventWithEventData, eventData)
  /// Stores the whole dictionary as event data, then reads the five keys of OrvantaEvent from it.
  bool updateWithDictionary(const Dictionary* dictionary) override;
  /// The event data wins over the event's own entries, including "code" and "klazz".
  Dictionary dictionaryValueWithPolicy(bool classInfo) const override;
};

}  // namespace orvanta
