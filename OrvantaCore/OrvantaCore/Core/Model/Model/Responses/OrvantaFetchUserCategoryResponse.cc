#include "Responses/OrvantaFetchUserCategoryResponse.h"

namespace orvanta {

ORVANTA_IMPLEMENTATION(OrvantaFetchUserCategoryResponse)

}  // namespace orvanta
