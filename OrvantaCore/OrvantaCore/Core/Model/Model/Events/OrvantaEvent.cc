#include "orvanta/Model/Events/OrvantaEvent.h"

namespace orvanta {

ORVANTA_IMPLEMENTATION(OrvantaEvent)

bool OrvantaEvent::initInternal() {
  if (!init()) return false;
  revenue_ = kNoAmount;
  return true;
}

}  // namespace orvanta
