#pragma once

#include "orvanta/Model/Mapping/OrvantaBaseModel.h"

namespace orvanta {

/// The user's profile, set by the application. Sent in OrvantaUpdateUserRequest. The user id,
/// e-mail address and mobile number are not in its dictionary.
class OrvantaUser : public OrvantaBaseModel {
  ORVANTA_MODEL(OrvantaUser, OrvantaBaseModel)

  ORVANTA_PROPERTY(kUnmapped, copy, String, userId, setUserId)
  ORVANTA_PROPERTY(kUnmapped, copy, String, email, setEmail)
  /// The mobile number.
  ORVANTA_PROPERTY(kUnmapped, copy, String, MSISDN, setMSISDN)
  ORVANTA_PROPERTY("pa", copy, String, name, setName)
  ORVANTA_PROPERTY("pb", copy, String, surname, setSurname)
  ORVANTA_PROPERTY("po", copy, String, language, setLanguage)
  ORVANTA_PROPERTY("pe", copy, Date, dateOfBirth, setDateOfBirth)
  /// kUnsetInteger if unset, like the next two.
  ORVANTA_PROPERTY("pd", assign, std::uint64_t, gender, setGender)
  ORVANTA_PROPERTY("pf", assign, std::uint64_t, maritalStatus, setMaritalStatus)
  ORVANTA_PROPERTY("pg", assign, std::uint64_t, numberOfChildren, setNumberOfChildren)
  ORVANTA_PROPERTY("ph", copy, String, country, setCountry)
  ORVANTA_PROPERTY("pi", copy, String, state, setState)
  ORVANTA_PROPERTY("pj", copy, String, city, setCity)
  ORVANTA_PROPERTY("pk", copy, String, district, setDistrict)
  ORVANTA_PROPERTY("pl", copy, String, occupation, setOccupation)
  ORVANTA_PROPERTY("pm", copy, String, industry, setIndustry)
  ORVANTA_PROPERTY("pn", copy, String, favouriteTeam, setFavouriteTeam)
  ORVANTA_PROPERTY("pc", copy, Array, externalSegments, setExternalSegments)

  /// Resets `gender`, `maritalStatus` and `numberOfChildren` to kUnsetInteger, then reads.
  bool updateWithDictionary(const Dictionary* dictionary) override;
};

}  // namespace orvanta
