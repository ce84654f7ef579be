#pragma once

#include "orvanta/Model/Mapping/Property.h"

namespace orvanta {

/// What a stored record knows about its storage.
class OrvantaPersistenceModel {
 public:
  virtual ~OrvantaPersistenceModel() = default;

  /// The key of the stored record.
  virtual const Held<Number>& storageId() const = 0;
  virtual void setStorageId(Held<Number> storageId) = 0;
  /// The keys of the records that this one carries.
  virtual const Held<MutableArray>& idsContained() const = 0;
  virtual void setIdsContained(Held<MutableArray> idsContained) = 0;
};

}  // namespace orvanta
