#pragma once

#include "orvanta/Model/Commerce/OrvantaContent.h"
#include "orvanta/Model/Events/OrvantaEvent.h"

namespace orvanta {

/// An event about a content, whose keys stand beside the event's own.
class OrvantaBaseContentEvent : public OrvantaEvent {
  ORVANTA_ABSTRACT_EVENT(OrvantaBaseContentEvent, OrvantaEvent)

  ORVANTA_PROPERTY(kUnmapped, strong, OrvantaContent, content, setContent)

  ORVANTA_EVENT_INITIALISER(initWithContent, eventWithContent, content)

  /// Makes the content of the whole dictionary first; when that refuses, so does the event, and its
  /// own fields stay as they were.
  bool updateWithDictionary(const Dictionary* dictionary) override;
  /// One flat dictionary, in which the event's entries stand over the content's.
  Dictionary dictionaryValueWithPolicy(bool classInfo) const override;
};

}  // namespace orvanta
