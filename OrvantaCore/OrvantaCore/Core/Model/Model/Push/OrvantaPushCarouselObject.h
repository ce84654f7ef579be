#pragma once

#include "orvanta/Model/Mapping/OrvantaBaseModel.h"

namespace orvanta {

/// An item of a carousel notification.
class OrvantaPushCarouselObject : public OrvantaBaseModel {
  ORVANTA_MODEL(OrvantaPushCarouselObject, OrvantaBaseModel)

  ORVANTA_PROPERTY("id", copy, String, itemId, setItemId)
  ORVANTA_PROPERTY("ctitle", copy, String, title, setTitle)
  ORVANTA_PROPERTY("ctext", copy, String, text, setText)
  ORVANTA_PROPERTY("act", copy, Dictionary, actionDictionary, setActionDictionary)
  /// A string; not parsed as a URL.
  ORVANTA_PROPERTY("bpp", copy, String, mediaUrl, setMediaUrl)
};

}  // namespace orvanta
