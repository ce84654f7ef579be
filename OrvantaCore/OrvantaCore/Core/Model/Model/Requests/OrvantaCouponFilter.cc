#include "orvanta/Model/Requests/OrvantaCouponFilter.h"

namespace orvanta {

ORVANTA_IMPLEMENTATION(OrvantaCouponFilter)

}  // namespace orvanta
