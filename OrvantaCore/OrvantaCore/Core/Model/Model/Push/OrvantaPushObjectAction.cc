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
  const auto text = deeplinkURLString_.get();
  const auto url = text ? Url::parse(percentEncoded(*text, kAllowed)) : std::nullopt;
  deeplinkURL_ = url ? Held<Url>(*url) : nullptr;
}

}  // namespace orvanta
