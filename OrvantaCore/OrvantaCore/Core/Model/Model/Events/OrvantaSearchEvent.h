#pragma once

#include "orvanta/Model/Events/OrvantaEvent.h"

namespace orvanta {

/// The user searched.
class OrvantaSearchEvent : public OrvantaEvent {
  ORVANTA_EVENT(OrvantaSearchEvent, OrvantaEvent, "o:sr")

  ORVANTA_PROPERTY("en", copy, String, query, setQuery)
  ORVANTA_PROPERTY("ec", assign, std::uint64_t, resultCount, setResultCount)

  ORVANTA_EVENT_INITIALIZER(initWithQuery, eventWithQuery, query, resultCount)
};

}  // namespace orvanta
