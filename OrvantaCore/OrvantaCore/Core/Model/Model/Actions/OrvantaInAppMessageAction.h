#pragma once

#include "orvanta/Model/Actions/OrvantaAction.h"

namespace orvanta {

/// Shows a message inside the application. Colors and the image are strings, sizes and times plain
/// numbers; the code that presents the message defines formats and units.
class OrvantaInAppMessageAction : public OrvantaAction {
  ORVANTA_MODEL(OrvantaInAppMessageAction, OrvantaAction)

  ORVANTA_PROPERTY("txt", strong, String, text, setText)
  ORVANTA_PROPERTY("tid", copy, String, templateId, setTemplateId)
  ORVANTA_PROPERTY("tt", copy, String, title, setTitle)
  ORVANTA_PROPERTY("img", copy, String, image, setImage)
  ORVANTA_PROPERTY("ttl", assign, double, timeToLive, setTimeToLive)
  ORVANTA_PROPERTY("drc", copy, String, direction, setDirection)
  ORVANTA_PROPERTY("fsz", assign, double, fontSize, setFontSize)
  ORVANTA_PROPERTY("fcl", copy, String, fontColor, setFontColor)
  ORVANTA_PROPERTY("ffm", strong, String, fontFamily, setFontFamily)
  ORVANTA_PROPERTY("brd", assign, double, borderRadius, setBorderRadius)
  ORVANTA_PROPERTY("pdt", assign, double, paddingTop, setPaddingTop)
  ORVANTA_PROPERTY("pdb", assign, double, paddingBottom, setPaddingBottom)
  ORVANTA_PROPERTY("pdl", assign, double, paddingLeft, setPaddingLeft)
  ORVANTA_PROPERTY("pdr", assign, double, paddingRight, setPaddingRight)
  ORVANTA_PROPERTY("omc", assign, bool, overrideMobilConfig, setOverrideMobilConfig)
  ORVANTA_PROPERTY("bcl", copy, String, backgroundColor, setBackgroundColor)
};

}  // namespace orvanta
