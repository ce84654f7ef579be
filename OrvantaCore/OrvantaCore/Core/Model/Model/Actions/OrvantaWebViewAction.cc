#include "orvanta/Model/Actions/OrvantaWebViewAction.h"

namespace orvanta {

ORVANTA_IMPLEMENTATION(OrvantaWebViewAction)

}  // namespace orvanta
