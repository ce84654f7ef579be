#include "orvanta/Model/Push/OrvantaPushObjectAction.h"

#include "orvanta/Foundation/CharacterSet.h"

namespace orvanta {

ORVANTA_IMPLEMENTATION(OrvantaPushObjectAction)

bool OrvantaPushObjectAction::initWithValue(const Value& value) {
  const Dictionary* dictionary = value.dictionary();
  return dictionary == nullptr || initWithDictionary(dictionary);
}

void OrvantaPushObjectAction::setDeeplinkURLAsURL() {
  static constexpr CharacterSet kAllowed = CharacterSet::urlHostAllowed();
  const auto string = deeplinkURLString_.get();
  const auto url = string ? Url::parse(percentEncoded(*string, kAllowed)) : std::nullopt;
  deeplinkURL_ = url ? PropertyValue<Url>(*url) : nullptr;
}

}  // namespace orvanta
