#include "orvanta/Model/Commerce/OrvantaLineItem.h"

namespace orvanta {

ORVANTA_IMPLEMENTATION(OrvantaLineItem)

}  // namespace orvanta
