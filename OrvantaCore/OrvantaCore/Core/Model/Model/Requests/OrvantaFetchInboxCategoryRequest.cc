#include "orvanta/Model/Requests/OrvantaFetchInboxCategoryRequest.h"

namespace orvanta {

ORVANTA_IMPLEMENTATION(OrvantaFetchInboxCategoryRequest)

}  // namespace orvanta
