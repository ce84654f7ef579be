#include "orvanta/Model/Actions/OrvantaUIAction.h"

namespace orvanta {

ORVANTA_IMPLEMENTATION(OrvantaUIAction)

}  // namespace orvanta
