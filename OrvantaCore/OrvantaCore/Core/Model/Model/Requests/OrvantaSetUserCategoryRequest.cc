#include "orvanta/Model/Requests/OrvantaSetUserCategoryRequest.h"

namespace orvanta {

ORVANTA_IMPLEMENTATION(OrvantaSetUserCategoryRequest)

}  // namespace orvanta
