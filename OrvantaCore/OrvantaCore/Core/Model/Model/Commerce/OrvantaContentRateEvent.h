#pragma once

#include "orvanta/Model/Commerce/OrvantaBaseContentEvent.h"

namespace orvanta {

/// The user rated a content. The application defines the scale of `rating`.
class OrvantaContentRateEvent : public OrvantaBaseContentEvent {
  ORVANTA_EVENT(OrvantaContentRateEvent, OrvantaBaseContentEvent, "o:rc")

  ORVANTA_PROPERTY("eo", assign, std::uint64_t, rating, setRating)

  ORVANTA_SUBSTITUTING_INITIALIZER(initWithContent, eventWithContent, (content), eventWithContent,
                                   (rating))
};

}  // namespace orvanta
