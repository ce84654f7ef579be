#include "orvanta/Model/Device/OrvantaAppAllDeviceInfo.h"

namespace orvanta {

ORVANTA_IMPLEMENTATION(OrvantaAppAllDeviceInfo)

}  // namespace orvanta
