#include "orvanta/Model/Mapping/OrvantaKeyValueStoreObject.h"

#include "orvanta/Platform/Platform.h"

namespace orvanta {

ORVANTA_IMPLEMENTATION(OrvantaKeyValueStoreObject)

Ref<OrvantaKeyValueStoreObject> OrvantaKeyValueStoreObject::objectWithValue(const Value& value) {
  return make<Self>(&Self::initWithValue, value);
}

bool OrvantaKeyValueStoreObject::initWithValue(const Value& value) {
  if (!init()) return false;
  Clock* clock = Platform::current().clock();
  const std::int64_t now = clock != nullptr ? clock->wallNanoseconds() : 0;
  creationDate_ = Date{static_cast<double>(now) / 1e9};
  value_ = value;
  return true;
}

bool OrvantaKeyValueStoreObject::updateWithDictionary(const Dictionary* dictionary) {
  const bool updated = Super::updateWithDictionary(dictionary);
  if (!creationDate_.isPresent()) creationDate_ = Date{0.0};
  return updated;
}

}  // namespace orvanta
