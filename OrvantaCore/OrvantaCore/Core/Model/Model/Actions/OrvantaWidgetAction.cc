#include "orvanta/Model/Actions/OrvantaWidgetAction.h"

namespace orvanta {

ORVANTA_IMPLEMENTATION(OrvantaWidgetAction)

}  // namespace orvanta
