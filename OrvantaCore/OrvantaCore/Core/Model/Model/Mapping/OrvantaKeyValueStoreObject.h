#pragma once

#include "orvanta/Model/Mapping/OrvantaBaseModel.h"

namespace orvanta {

/// A value of a key-value store with the time of its making.
class OrvantaKeyValueStoreObject : public OrvantaBaseModel {
  ORVANTA_MODEL(OrvantaKeyValueStoreObject, OrvantaBaseModel)

  ORVANTA_READONLY("date", strong, Date, creationDate)
  ORVANTA_READONLY("value", strong, AnyObject, value)

  /// A holder made now.
  static Ref<OrvantaKeyValueStoreObject> objectWithValue(const Value& value);
  bool initWithValue(const Value& value);
  /// One without a date gets that of 1970-01-01.
  bool updateWithDictionary(const Dictionary* dictionary) override;
};

}  // namespace orvanta
