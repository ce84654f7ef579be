#pragma once

#include "orvanta/Model/Commerce/OrvantaBaseContentEvent.h"

namespace orvanta {

/// The user commented on a content.
class OrvantaContentCommentEvent : public OrvantaBaseContentEvent {
  ORVANTA_EVENT(OrvantaContentCommentEvent, OrvantaBaseContentEvent, "o:cc")

  ORVANTA_FACTORY(eventWithContent, initWithContent, content)
};

}  // namespace orvanta
