#include "Device/OrvantaAppAllDeviceInfo.h"

namespace orvanta {

ORVANTA_IMPLEMENTATION(OrvantaAppAllDeviceInfo)

}  // namespace orvanta
