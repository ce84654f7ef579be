#include "orvanta/Model/Actions/OrvantaReviewAction.h"

namespace orvanta {

ORVANTA_IMPLEMENTATION(OrvantaReviewAction)

}  // namespace orvanta
