#include "orvanta/Model/Requests/OrvantaFetchInboxCountRequest.h"

namespace orvanta {

ORVANTA_IMPLEMENTATION(OrvantaFetchInboxCountRequest)

}  // namespace orvanta
