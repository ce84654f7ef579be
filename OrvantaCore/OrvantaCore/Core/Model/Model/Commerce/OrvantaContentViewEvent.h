#pragma once

#include "orvanta/Model/Commerce/OrvantaBaseContentEvent.h"

namespace orvanta {

/// The user viewed a content.
class OrvantaContentViewEvent : public OrvantaBaseContentEvent {
  ORVANTA_EVENT(OrvantaContentViewEvent, OrvantaBaseContentEvent, "o:vc")

  ORVANTA_FACTORY(eventWithContent, initWithContent, content)
};

}  // namespace orvanta
