#include "orvanta/Model/Requests/OrvantaInitSessionRequest.h"

namespace orvanta {

ORVANTA_IMPLEMENTATION(OrvantaInitSessionRequest)

bool OrvantaInitSessionRequest::updateWithDictionary(const Dictionary* dictionary) {
  timeZoneOffset_ = kUnsetInteger;
  return Super::updateWithDictionary(dictionary);
}

}  // namespace orvanta
