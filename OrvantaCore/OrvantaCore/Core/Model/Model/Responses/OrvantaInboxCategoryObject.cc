#include "orvanta/Model/Responses/OrvantaInboxCategoryObject.h"

namespace orvanta {

ORVANTA_IMPLEMENTATION(OrvantaInboxCategoryObject)

}  // namespace orvanta
