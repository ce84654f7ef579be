#pragma once

#include "orvanta/Model/Mapping/OrvantaBaseModel.h"

namespace orvanta {

/// What a tap on the notification does.
class OrvantaPushObjectAction : public OrvantaBaseModel {
  ORVANTA_MODEL(OrvantaPushObjectAction, OrvantaBaseModel)

  ORVANTA_PROPERTY("uri", strong, String, deeplinkURLString, setDeeplinkURLString)
  ORVANTA_PROPERTY(kUnmapped, strong, Url, deeplinkURL, setDeeplinkURL)

  /// A dictionary is mapped; anything else gives an empty action.
  bool initWithValue(const Value& value);
  /// Sets the URL from the text, every character outside the URL-host set percent-encoded: of
  /// "shop://a/b" it makes "shop:%2F%2Fa%2Fb". None when there is no text.
  void setDeeplinkURLAsURL();
};

}  // namespace orvanta
