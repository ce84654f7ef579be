#include "orvanta/Model/Responses/OrvantaInboxCategoryStatusObject.h"

namespace orvanta {

ORVANTA_IMPLEMENTATION(OrvantaInboxCategoryStatusObject)

}  // namespace orvanta
