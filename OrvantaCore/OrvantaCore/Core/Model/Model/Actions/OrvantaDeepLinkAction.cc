#include "orvanta/Model/Actions/OrvantaDeepLinkAction.h"

namespace orvanta {

ORVANTA_IMPLEMENTATION(OrvantaDeepLinkAction)

}  // namespace orvanta
