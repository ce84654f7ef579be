#include "orvanta/Model/Requests/OrvantaInboxCountFilter.h"

namespace orvanta {

ORVANTA_IMPLEMENTATION(OrvantaInboxCountFilter)

bool OrvantaInboxCountFilter::init() {
  if (!Super::init()) return false;
  status_ = 3;
  shouldIncludeExpiredObjects_ = false;
  return true;
}

}  // namespace orvanta
