#include "orvanta/Model/Responses/OrvantaFetchUserCategoryResponse.h"

namespace orvanta {

ORVANTA_IMPLEMENTATION(OrvantaFetchUserCategoryResponse)

}  // namespace orvanta
