#include "orvanta/Model/User/OrvantaUserCategoryPreference.h"

namespace orvanta {

ORVANTA_IMPLEMENTATION(OrvantaUserCategoryPreference)

}  // namespace orvanta
