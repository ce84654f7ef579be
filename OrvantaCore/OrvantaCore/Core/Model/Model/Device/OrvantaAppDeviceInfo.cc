#include "Device/OrvantaAppDeviceInfo.h"

namespace orvanta {

ORVANTA_IMPLEMENTATION(OrvantaAppDeviceInfo)

}  // namespace orvanta
