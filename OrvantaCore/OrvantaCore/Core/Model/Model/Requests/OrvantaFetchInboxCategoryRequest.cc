#include "Requests/OrvantaFetchInboxCategoryRequest.h"

namespace orvanta {

ORVANTA_IMPLEMENTATION(OrvantaFetchInboxCategoryRequest)

}  // namespace orvanta
