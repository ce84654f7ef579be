#include "orvanta/Model/Commerce/OrvantaContentCommentEvent.h"

namespace orvanta {

ORVANTA_IMPLEMENTATION(OrvantaContentCommentEvent)

}  // namespace orvanta
