#pragma once

#include "orvanta/Model/Mapping/OrvantaBaseModel.h"

namespace orvanta {

/// How a payload wants its notification to look.
class OrvantaPushStyle : public OrvantaBaseModel {
  ORVANTA_MODEL(OrvantaPushStyle, OrvantaBaseModel)

  ORVANTA_PROPERTY("ffm", copy, String, fontFamily, setFontFamily)
  /// The name of an image in the application's resources, shown as the sender's picture.
  ORVANTA_READONLY("iospi", copy, String, pushIcon)
};

}  // namespace orvanta
