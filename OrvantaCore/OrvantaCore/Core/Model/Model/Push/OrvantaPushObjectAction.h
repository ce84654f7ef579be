#pragma once

#include "orvanta/Model/Mapping/OrvantaBaseModel.h"

namespace orvanta {

/// Runs when the user taps the notification. Received in push payloads ("_ov.act").
class OrvantaPushObjectAction : public OrvantaBaseModel {
  ORVANTA_MODEL(OrvantaPushObjectAction, OrvantaBaseModel)

  ORVANTA_PROPERTY("uri", strong, String, deeplinkURLString, setDeeplinkURLString)
  ORVANTA_PROPERTY(kUnmapped, strong, Url, deeplinkURL, setDeeplinkURL)

  /// Reads a dictionary; any other value gives an empty action.
  bool initWithValue(const Value& value);
  /// Sets `deeplinkURL` from the string, with every character outside the platform's URL-host set
  /// percent-encoded: "shop://a/b" becomes "shop:%2F%2Fa%2Fb". Nil without a string.
  void setDeeplinkURLAsURL();
};

}  // namespace orvanta
