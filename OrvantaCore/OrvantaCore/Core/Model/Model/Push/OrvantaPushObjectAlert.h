#pragma once

#include "orvanta/Model/Mapping/OrvantaBaseModel.h"

namespace orvanta {

/// The strings that a notification displays. Received in push payloads ("aps.alert").
class OrvantaPushObjectAlert : public OrvantaBaseModel {
  ORVANTA_MODEL(OrvantaPushObjectAlert, OrvantaBaseModel)

  ORVANTA_PROPERTY("title", copy, String, title, setTitle)
  ORVANTA_PROPERTY("subtitle", copy, String, subtitle, setSubtitle)
  ORVANTA_PROPERTY("body", copy, String, body, setBody)

  /// An alert with a body only.
  bool initWithString(const Value& body);
  /// Takes a string as body and reads a dictionary; any other value gives an empty alert.
  bool initWithValue(const Value& value);
};

}  // namespace orvanta
