#include "orvanta/Model/Events/OrvantaWebViewActionEvent.h"

namespace orvanta {

ORVANTA_IMPLEMENTATION(OrvantaWebViewActionEvent)

bool OrvantaWebViewActionEvent::updateWithDictionary(const Dictionary* dictionary) {
  eventData_ = dictionary != nullptr ? PropertyValue<Dictionary>(*dictionary) : nullptr;
  return Super::updateWithDictionary(dictionary);
}

Dictionary OrvantaWebViewActionEvent::dictionaryValueWithPolicy(bool classInfo) const {
  Dictionary result = Super::dictionaryValueWithPolicy(classInfo);
  if (const Dictionary* data = eventData_.get()) result.addEntries(*data);
  return result;
}

}  // namespace orvanta
