#include "orvanta/Model/Commerce/OrvantaBaseContentEvent.h"

namespace orvanta {

ORVANTA_IMPLEMENTATION(OrvantaBaseContentEvent)

bool OrvantaBaseContentEvent::updateWithDictionary(const Dictionary* dictionary) {
  return updateFlattened(content_, "content", dictionary) &&
         Super::updateWithDictionary(dictionary);
}

Dictionary OrvantaBaseContentEvent::dictionaryValueWithPolicy(bool classInfo) const {
  return flattened(content_.get(), classInfo, Super::dictionaryValueWithPolicy(classInfo));
}

}  // namespace orvanta
