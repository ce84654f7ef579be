#include "orvanta/Model/Commerce/OrvantaContentViewEvent.h"

namespace orvanta {

ORVANTA_IMPLEMENTATION(OrvantaContentViewEvent)

}  // namespace orvanta
