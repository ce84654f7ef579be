#pragma once

#include "orvanta/Model/Commerce/OrvantaBaseContentEvent.h"

namespace orvanta {

/// A content was looked at.
class OrvantaContentViewEvent : public OrvantaBaseContentEvent {
  ORVANTA_EVENT(OrvantaContentViewEvent, OrvantaBaseContentEvent, "o:vc")

  ORVANTA_FACTORY(eventWithContent, initWithContent, content)
};

}  // namespace orvanta
