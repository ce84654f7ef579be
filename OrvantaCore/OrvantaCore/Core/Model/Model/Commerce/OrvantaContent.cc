#include "orvanta/Model/Commerce/OrvantaContent.h"

namespace orvanta {

ORVANTA_IMPLEMENTATION(OrvantaContent)

}  // namespace orvanta
