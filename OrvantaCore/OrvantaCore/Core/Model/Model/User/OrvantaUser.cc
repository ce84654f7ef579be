#include "orvanta/Model/User/OrvantaUser.h"

namespace orvanta {

ORVANTA_IMPLEMENTATION(OrvantaUser)

bool OrvantaUser::updateWithDictionary(const Dictionary* dictionary) {
  gender_ = kUnsetInteger;
  maritalStatus_ = kUnsetInteger;
  numberOfChildren_ = kUnsetInteger;
  return Super::updateWithDictionary(dictionary);
}

}  // namespace orvanta
