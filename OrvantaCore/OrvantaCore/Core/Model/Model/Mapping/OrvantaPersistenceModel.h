#pragma once

#include "orvanta/Model/Mapping/PropertyValue.h"

namespace orvanta {

/// What a stored record knows about its storage.
class OrvantaPersistenceModel {
 public:
  virtual ~OrvantaPersistenceModel() = default;

  /// The key of the stored record.
  virtual const PropertyValue<Number>& storageId() const = 0;
  virtual void setStorageId(PropertyValue<Number> storageId) = 0;
  /// The keys of the records that this one carries.
  virtual const PropertyValue<MutableArray>& idsContained() const = 0;
  virtual void setIdsContained(PropertyValue<MutableArray> idsContained) = 0;
};

}  // namespace orvanta
