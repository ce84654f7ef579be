#pragma once

#include "orvanta/Model/Requests/OrvantaBaseRequest.h"
#include "orvanta/Model/Responses/OrvantaIdentifyUserResponse.h"
#include "orvanta/Model/User/OrvantaUser.h"

namespace orvanta {

/// Tells who the user is.
class OrvantaUpdateUserRequest : public OrvantaBaseRequest {
  ORVANTA_REQUEST(OrvantaUpdateUserRequest, OrvantaRequestPathTypeUpdateUser,
                  OrvantaIdentifyUserResponse)

  ORVANTA_PROPERTY("email", copy, String, email, setEmail)
  ORVANTA_PROPERTY("msisdn", copy, String, msisdn, setMsisdn)
  /// The profile.
  ORVANTA_PROPERTY("prfl", strong, Dictionary, userPayload, setUserPayload)

  /// Takes the e-mail address, the mobile number, and the rest as the profile. Nothing of nullptr.
  bool initWithUser(const OrvantaUser* user);
};

}  // namespace orvanta
