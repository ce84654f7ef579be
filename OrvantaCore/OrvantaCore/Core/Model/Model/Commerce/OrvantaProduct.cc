#include "orvanta/Model/Commerce/OrvantaProduct.h"

namespace orvanta {

ORVANTA_IMPLEMENTATION(OrvantaProduct)

}  // namespace orvanta
