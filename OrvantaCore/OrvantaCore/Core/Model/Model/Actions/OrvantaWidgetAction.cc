#include "Actions/OrvantaWidgetAction.h"

namespace orvanta {

ORVANTA_IMPLEMENTATION(OrvantaWidgetAction)

}  // namespace orvanta
