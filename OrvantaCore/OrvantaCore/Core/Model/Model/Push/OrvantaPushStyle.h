#pragma once

#include "orvanta/Model/Mapping/OrvantaBaseModel.h"

namespace orvanta {

/// The appearance of a notification. Received in push payloads ("_ov.ps").
class OrvantaPushStyle : public OrvantaBaseModel {
  ORVANTA_MODEL(OrvantaPushStyle, OrvantaBaseModel)

  ORVANTA_PROPERTY("ffm", copy, String, fontFamily, setFontFamily)
  /// Name of an image in the application's resources. Its presence makes the notification a
  /// communication notification with this image of the sender.
  ORVANTA_READONLY("iospi", copy, String, pushIcon)
};

}  // namespace orvanta
