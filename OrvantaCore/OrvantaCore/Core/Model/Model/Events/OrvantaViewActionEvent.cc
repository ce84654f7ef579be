#include "orvanta/Model/Events/OrvantaViewActionEvent.h"

namespace orvanta {

ORVANTA_IMPLEMENTATION(OrvantaViewActionEvent)

}  // namespace orvanta
