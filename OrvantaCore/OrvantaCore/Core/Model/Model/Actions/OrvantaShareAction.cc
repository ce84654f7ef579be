#include "orvanta/Model/Actions/OrvantaShareAction.h"

namespace orvanta {

ORVANTA_IMPLEMENTATION(OrvantaShareAction)

}  // namespace orvanta
