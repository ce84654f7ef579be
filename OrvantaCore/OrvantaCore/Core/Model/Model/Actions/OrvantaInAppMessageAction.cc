#include "orvanta/Model/Actions/OrvantaInAppMessageAction.h"

namespace orvanta {

ORVANTA_IMPLEMENTATION(OrvantaInAppMessageAction)

}  // namespace orvanta
