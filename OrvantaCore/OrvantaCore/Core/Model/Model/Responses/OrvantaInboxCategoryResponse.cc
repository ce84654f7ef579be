#include "orvanta/Model/Responses/OrvantaInboxCategoryResponse.h"

namespace orvanta {

ORVANTA_IMPLEMENTATION(OrvantaInboxCategoryResponse)

}  // namespace orvanta
