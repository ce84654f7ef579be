#include "Identity/OrvantaIdentifiers.h"

namespace orvanta {

ORVANTA_IMPLEMENTATION(OrvantaIdentifiers)

void OrvantaIdentifiers::removePropertiesSameWithIdentifiers(const OrvantaIdentifiers* other) {
  for (const KeyEntry& entry : keyPathPropertySelectorMapping()) {
    removePropertiesWithKeys({&entry.property, 1}, other);
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
