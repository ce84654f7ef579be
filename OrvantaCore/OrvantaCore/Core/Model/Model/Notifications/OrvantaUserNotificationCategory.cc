#include "Notifications/OrvantaUserNotificationCategory.h"

namespace orvanta {

ORVANTA_IMPLEMENTATION(OrvantaUserNotificationCategory)

}  // namespace orvanta
