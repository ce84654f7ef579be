#pragma once

#include "orvanta/Model/Actions/OrvantaAction.h"

namespace orvanta {

/// Shows a web view. Sizes and times are plain numbers; the code that presents it defines the
/// units.
class OrvantaWebViewAction : public OrvantaAction {
  ORVANTA_MODEL(OrvantaWebViewAction, OrvantaAction)

  ORVANTA_PROPERTY("url", strong, Url, URL, setURL)
  ORVANTA_PROPERTY("tid", copy, String, templateId, setTemplateId)
  ORVANTA_PROPERTY(kUnmapped, copy, String, templateHTML, setTemplateHTML)
  ORVANTA_PROPERTY("tprms", strong, Dictionary, templateParams, setTemplateParams)
  ORVANTA_PROPERTY("fsc", assign, bool, shouldShowPopupFullscreen, setShouldShowPopupFullscreen)
  ORVANTA_PROPERTY("whr", assign, double, widthHeightRatio, setWidthHeightRatio)
  ORVANTA_PROPERTY("ch", assign, double, heightConstant, setHeightConstant)
  ORVANTA_PROPERTY("ptl", assign, double, timeToLive, setTimeToLive)
  ORVANTA_PROPERTY("pbr", assign, double, borderRadius, setBorderRadius)
};

}  // namespace orvanta
