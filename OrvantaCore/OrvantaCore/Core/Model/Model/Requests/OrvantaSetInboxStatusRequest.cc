#include "orvanta/Model/Requests/OrvantaSetInboxStatusRequest.h"

namespace orvanta {

ORVANTA_IMPLEMENTATION(OrvantaSetInboxStatusRequest)

bool OrvantaSetInboxStatusRequest::initWithForAllObjectStatus(std::uint64_t status) {
  if (!init()) return false;
  allObjects_ = true;
  status_ = status;
  return true;
}

}  // namespace orvanta
