#pragma once

#include "orvanta/Model/Actions/OrvantaAction.h"

namespace orvanta {

/// Opens a deep link.
class OrvantaDeepLinkAction : public OrvantaAction {
  ORVANTA_MODEL(OrvantaDeepLinkAction, OrvantaAction)

  ORVANTA_PROPERTY("uri", strong, Url, URL, setURL)
  ORVANTA_PROPERTY(kUnmapped, assign, bool, appManage, setAppManage)
};

}  // namespace orvanta
