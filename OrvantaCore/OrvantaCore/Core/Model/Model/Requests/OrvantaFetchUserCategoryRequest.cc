#include "orvanta/Model/Requests/OrvantaFetchUserCategoryRequest.h"

namespace orvanta {

ORVANTA_IMPLEMENTATION(OrvantaFetchUserCategoryRequest)

}  // namespace orvanta
