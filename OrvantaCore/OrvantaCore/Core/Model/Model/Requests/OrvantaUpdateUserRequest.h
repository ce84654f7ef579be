#pragma once

#include "orvanta/Model/Requests/OrvantaBaseRequest.h"
#include "orvanta/Model/Responses/OrvantaIdentifyUserResponse.h"
#include "orvanta/Model/User/OrvantaUser.h"

namespace orvanta {

/// Reports the user's profile.
class OrvantaUpdateUserRequest : public OrvantaBaseRequest {
  ORVANTA_REQUEST(OrvantaUpdateUserRequest, OrvantaRequestPathTypeUpdateUser,
                  OrvantaIdentifyUserResponse)

  ORVANTA_PROPERTY("email", copy, String, email, setEmail)
  ORVANTA_PROPERTY("msisdn", copy, String, msisdn, setMsisdn)
  /// The dictionary of an OrvantaUser.
  ORVANTA_PROPERTY("prfl", strong, Dictionary, userPayload, setUserPayload)

  /// Copies the e-mail address and the mobile number, and the user's dictionary as the profile.
  /// Sets nothing for nullptr.
  bool initWithUser(const OrvantaUser* user);
};

}  // namespace orvanta
