#include "orvanta/Model/Events/OrvantaCrashEvent.h"

namespace orvanta {

ORVANTA_IMPLEMENTATION(OrvantaCrashEvent)

}  // namespace orvanta
