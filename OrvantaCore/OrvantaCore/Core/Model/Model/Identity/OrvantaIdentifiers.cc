#include "orvanta/Model/Identity/OrvantaIdentifiers.h"

#include <algorithm>
#include <iterator>

namespace orvanta {

ORVANTA_IMPLEMENTATION(OrvantaIdentifiers)
static_assert(std::all_of(std::begin(kOrvantaIdentifiersTables.properties),
                          std::end(kOrvantaIdentifiersTables.properties),
                          [](const Property& p) { return p.isStored() && !p.isScalar(); }));

void OrvantaIdentifiers::removePropertiesSameWithIdentifiers(const OrvantaIdentifiers* other) {
  if (other == nullptr) return;
  for (const Property& property : kClass.properties) {
    Value& own = *static_cast<Value*>(property.field(*this));
    if (own.isNil() || own.isNull()) continue;
    if (own == *static_cast<const Value*>(property.field(*other))) own = Value();
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
