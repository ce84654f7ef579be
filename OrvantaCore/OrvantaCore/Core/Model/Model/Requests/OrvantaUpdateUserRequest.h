#pragma once

#include "Requests/OrvantaBaseRequest.h"
#include "Responses/OrvantaIdentifyUserResponse.h"
#include "User/OrvantaUser.h"

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
