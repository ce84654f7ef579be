#include "orvanta/Model/Actions/OrvantaSendEventAction.h"

namespace orvanta {

ORVANTA_IMPLEMENTATION(OrvantaSendEventAction)

}  // namespace orvanta
