#include "Actions/OrvantaShareAction.h"

namespace orvanta {

ORVANTA_IMPLEMENTATION(OrvantaShareAction)

}  // namespace orvanta
