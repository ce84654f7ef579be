#pragma once

#include "orvanta/Model/Mapping/OrvantaBaseModel.h"

namespace orvanta {

/// A value in a key-value store, with its creation date.
class OrvantaKeyValueStoreObject : public OrvantaBaseModel {
  ORVANTA_MODEL(OrvantaKeyValueStoreObject, OrvantaBaseModel)

  ORVANTA_READONLY("date", strong, Date, creationDate)
  ORVANTA_READONLY("value", strong, AnyObject, value)

  /// Creates an object with the current date.
  static Ref<OrvantaKeyValueStoreObject> objectWithValue(const Value& value);
  bool initWithValue(const Value& value);
  /// Sets the date to 1970-01-01 if the dictionary has none.
  bool updateWithDictionary(const Dictionary* dictionary) override;
};

}  // namespace orvanta
