#pragma once

#include "orvanta/Model/Mapping/OrvantaBaseModel.h"

namespace orvanta {

/// The identities that tie a request or an event to an installation, a device, a session, a user
/// and, where it applies, a push message, a flow and a test.
class OrvantaIdentifiers : public OrvantaBaseModel {
  ORVANTA_MODEL(OrvantaIdentifiers, OrvantaBaseModel)

  ORVANTA_PROPERTY("iid", copy, String, installationId, setInstallationId)
  ORVANTA_PROPERTY("did", copy, String, deviceId, setDeviceId)
  ORVANTA_PROPERTY("sid", copy, String, sessionId, setSessionId)
  ORVANTA_PROPERTY("uid", copy, String, userId, setUserId)
  ORVANTA_PROPERTY("xid", copy, String, externalId, setExternalId)
  ORVANTA_PROPERTY("pid", copy, String, pushId, setPushId)
  ORVANTA_PROPERTY("piid", copy, String, pushInstanceId, setPushInstanceId)
  ORVANTA_PROPERTY("fid", copy, String, flowId, setFlowId)
  ORVANTA_PROPERTY("aid", copy, Number, abTestId, setAbTestId)
  ORVANTA_PROPERTY("oid", copy, Number, abTestOptionId, setAbTestOptionId)
  ORVANTA_PROPERTY("slt", copy, Number, slotId, setSlotId)

  /// Sets to nil whichever of these eleven the other has the same of. Nothing changes when the
  /// other is nil.
  void removePropertiesSameWithIdentifiers(const OrvantaIdentifiers* other);
  /// The same for the properties of these names. A null object stays, and so does what differs.
  /// Throws the undefined-key exception for a name that is no property.
  void removePropertiesWithKeys(std::span<const std::string_view> names,
                                const OrvantaIdentifiers* other);
};

}  // namespace orvanta
