#include "orvanta/Model/Commerce/OrvantaBaseProductEvent.h"

namespace orvanta {

ORVANTA_IMPLEMENTATION(OrvantaBaseProductEvent)

bool OrvantaBaseProductEvent::updateWithDictionary(const Dictionary* dictionary) {
  return updateFlattened(product_, "product", dictionary) &&
         Super::updateWithDictionary(dictionary);
}

Dictionary OrvantaBaseProductEvent::dictionaryValueWithPolicy(bool classInfo) const {
  return flattened(product_.get(), classInfo, Super::dictionaryValueWithPolicy(classInfo));
}

}  // namespace orvanta
