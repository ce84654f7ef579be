#include "Notifications/OrvantaUserNotificationAction.h"

namespace orvanta {

ORVANTA_IMPLEMENTATION(OrvantaUserNotificationAction)

}  // namespace orvanta
