#include "Identity/OrvantaIdentifiers.h"

namespace orvanta {

ORVANTA_IMPLEMENTATION(OrvantaIdentifiers)

void OrvantaIdentifiers::removePropertiesSameWithIdentifiers(const OrvantaIdentifiers* other) {
  if (other == nullptr) return;
  const auto held = [](const OrvantaIdentifiers* identifiers, const Property& property) -> Value& {
    return *static_cast<Value*>(property.field(const_cast<OrvantaIdentifiers&>(*identifiers)));
  };
  for (const Property& property : kClass.properties) {  // stored objects, all of them
    Value& own = held(this, property);
    if (own.isNil() || own.isNull()) continue;
    if (own == held(other, property)) own = Value();
  }
}

void OrvantaIdentifiers::removePropertiesWithKeys(std::span<const std::string_view> names,
                                                  const OrvantaIdentifiers* other) {
  for (const std::string_view name : names) {
    const Value own = valueForKey(name);
    if (own.isNil() || own.isNull() || other == nullptr) continue;
    if (own == other->valueForKey(name)) setValueForKey(Value(), name);
  }
}

}  // namespace orvanta
