#pragma once

#include "orvanta/Model/Mapping/OrvantaBaseModel.h"

namespace orvanta {

/// Changes a setting of the user interface; `item` names it.
class OrvantaUIAction : public OrvantaBaseModel {
  ORVANTA_MODEL(OrvantaUIAction, OrvantaBaseModel)

  ORVANTA_PROPERTY("uii", strong, String, item, setItem)
  ORVANTA_PROPERTY("ive", assign, bool, valueEnabled, setValueEnabled)
  ORVANTA_PROPERTY("ipe", assign, bool, privateEnabled, setPrivateEnabled)
};

}  // namespace orvanta
