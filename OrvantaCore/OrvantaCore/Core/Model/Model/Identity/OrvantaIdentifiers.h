#pragma once

#include "orvanta/Model/Mapping/OrvantaBaseModel.h"

namespace orvanta {

/// Identifies the installation, device, session and user of a request or an event, and the push
/// message, flow and A/B test if there is one. Sent under "ids".
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

  /// Sets to nil each of the eleven properties that is equal in `other`. Null objects stay. Does
  /// nothing if `other` is nullptr.
  void removePropertiesSameWithIdentifiers(const OrvantaIdentifiers* other);
  /// The same for the named properties. Throws the undefined-key exception if a name is not a
  /// property.
  void removePropertiesWithKeys(std::span<const std::string_view> names,
                                const OrvantaIdentifiers* other);
};

}  // namespace orvanta
