#include "orvanta/Model/Actions/OrvantaAction.h"

namespace orvanta {

ORVANTA_IMPLEMENTATION(OrvantaAction)

}  // namespace orvanta
