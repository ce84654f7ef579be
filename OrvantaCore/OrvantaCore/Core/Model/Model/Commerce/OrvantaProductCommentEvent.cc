#include "orvanta/Model/Commerce/OrvantaProductCommentEvent.h"

namespace orvanta {

ORVANTA_IMPLEMENTATION(OrvantaProductCommentEvent)

}  // namespace orvanta
