#pragma once

#include "orvanta/Model/Commerce/OrvantaBaseContentEvent.h"

namespace orvanta {

/// A content was commented on.
class OrvantaContentCommentEvent : public OrvantaBaseContentEvent {
  ORVANTA_EVENT(OrvantaContentCommentEvent, OrvantaBaseContentEvent, "o:cc")

  ORVANTA_FACTORY(eventWithContent, initWithContent, content)
};

}  // namespace orvanta
