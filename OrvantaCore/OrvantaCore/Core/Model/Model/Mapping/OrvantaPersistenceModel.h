#pragma once

#include "orvanta/Model/Mapping/PropertyValue.h"

namespace orvanta {

/// A record in persistent storage.
class OrvantaPersistenceModel {
 public:
  virtual ~OrvantaPersistenceModel() = default;

  /// Key of the record in the storage.
  virtual const PropertyValue<Number>& storageId() const = 0;
  virtual void setStorageId(PropertyValue<Number> storageId) = 0;
  /// Keys of the records that were merged into this one.
  virtual const PropertyValue<MutableArray>& idsContained() const = 0;
  virtual void setIdsContained(PropertyValue<MutableArray> idsContained) = 0;
};

}  // namespace orvanta
