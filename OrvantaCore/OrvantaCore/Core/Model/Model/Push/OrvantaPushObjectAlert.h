#pragma once

#include "orvanta/Model/Mapping/OrvantaBaseModel.h"

namespace orvanta {

/// The texts that a payload shows.
class OrvantaPushObjectAlert : public OrvantaBaseModel {
  ORVANTA_MODEL(OrvantaPushObjectAlert, OrvantaBaseModel)

  ORVANTA_PROPERTY("title", copy, String, title, setTitle)
  ORVANTA_PROPERTY("subtitle", copy, String, subtitle, setSubtitle)
  ORVANTA_PROPERTY("body", copy, String, body, setBody)

  /// An alert of a body alone.
  bool initWithString(const Value& body);
  /// A text is the body, a dictionary is mapped; anything else gives an empty alert.
  bool initWithValue(const Value& value);
};

}  // namespace orvanta
