#include "orvanta/Model/Device/OrvantaAppDeviceInfo.h"

namespace orvanta {

ORVANTA_IMPLEMENTATION(OrvantaAppDeviceInfo)

}  // namespace orvanta
