#include "orvanta/Model/Requests/OrvantaUpdateUserRequest.h"

namespace orvanta {

ORVANTA_IMPLEMENTATION(OrvantaUpdateUserRequest)

bool OrvantaUpdateUserRequest::initWithUser(const OrvantaUser* user) {
  if (!init()) return false;
  if (user != nullptr) {
    email_ = user->email();
    msisdn_ = user->MSISDN();
    userPayload_ = user->dictionaryValue();
  }
  return true;
}

}  // namespace orvanta
