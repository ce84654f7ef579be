#include "Actions/OrvantaAction.h"

namespace orvanta {

ORVANTA_IMPLEMENTATION(OrvantaAction)

}  // namespace orvanta
