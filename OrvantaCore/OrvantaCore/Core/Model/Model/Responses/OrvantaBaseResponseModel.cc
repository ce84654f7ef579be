#include "Responses/OrvantaBaseResponseModel.h"

namespace orvanta {

ORVANTA_IMPLEMENTATION(OrvantaBaseResponseModel)

}  // namespace orvanta
