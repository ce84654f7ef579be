#pragma once

#include "orvanta/Model/Events/OrvantaEvent.h"

namespace orvanta {

/// The user left a screen.
class OrvantaScreenViewEvent : public OrvantaEvent {
  ORVANTA_EVENT(OrvantaScreenViewEvent, OrvantaEvent, "o:sv")

  ORVANTA_PROPERTY("ee", copy, String, pageId, setPageId)
  ORVANTA_PROPERTY("ef", copy, String, referrerPageId, setReferrerPageId)
  ORVANTA_PROPERTY("ej", copy, String, referrerPageName, setReferrerPageName)
  /// Seconds.
  ORVANTA_PROPERTY("el", assign, double, timeInPage, setTimeInPage)
  ORVANTA_PROPERTY("ea", copy, String, pageName, setPageName)
  ORVANTA_PROPERTY("eg", strong, Array, keywords, setKeywords)
  ORVANTA_PROPERTY("fi", strong, MutableDictionary, formInfo, setFormInfo)

  ORVANTA_EVENT_INITIALIZER(initWithId, eventWithId, pageId, referrerPageId, referrerPageName,
                            timeInPage, pageName)
};

}  // namespace orvanta
