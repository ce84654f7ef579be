#include "orvanta/Model/Events/OrvantaBannerClickEvent.h"

namespace orvanta {

ORVANTA_IMPLEMENTATION(OrvantaBannerClickEvent)

}  // namespace orvanta
