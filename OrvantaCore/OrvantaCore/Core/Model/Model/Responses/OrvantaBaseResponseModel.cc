#include "orvanta/Model/Responses/OrvantaBaseResponseModel.h"

namespace orvanta {

ORVANTA_IMPLEMENTATION(OrvantaBaseResponseModel)

}  // namespace orvanta
