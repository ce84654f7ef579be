#include "orvanta/Model/Requests/OrvantaInboxFilter.h"

#include <limits>

namespace orvanta {

ORVANTA_IMPLEMENTATION(OrvantaInboxFilter)

bool OrvantaInboxFilter::init() {
  if (!Super::init()) return false;
  status_ = 3;
  shouldIncludeExpiredObjects_ = false;
  pageSize_ = std::numeric_limits<std::int32_t>::max();
  return true;
}

}  // namespace orvanta
