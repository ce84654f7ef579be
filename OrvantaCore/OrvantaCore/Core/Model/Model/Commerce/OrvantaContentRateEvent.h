#pragma once

#include "orvanta/Model/Commerce/OrvantaBaseContentEvent.h"

namespace orvanta {

/// A content was rated; the caller gives `rating` its scale.
class OrvantaContentRateEvent : public OrvantaBaseContentEvent {
  ORVANTA_EVENT(OrvantaContentRateEvent, OrvantaBaseContentEvent, "o:rc")

  ORVANTA_PROPERTY("eo", assign, std::uint64_t, rating, setRating)

  ORVANTA_SUBSTITUTING_INITIALISER(initWithContent, eventWithContent, (content), eventWithContent,
                                   (rating))
};

}  // namespace orvanta
