#include "orvanta/Model/Requests/OrvantaFetchInboxRequest.h"

namespace orvanta {

ORVANTA_IMPLEMENTATION(OrvantaFetchInboxRequest)

}  // namespace orvanta
