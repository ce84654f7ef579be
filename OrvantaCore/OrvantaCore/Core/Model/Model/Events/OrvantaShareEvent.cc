#include "orvanta/Model/Events/OrvantaShareEvent.h"

namespace orvanta {

ORVANTA_IMPLEMENTATION(OrvantaShareEvent)

}  // namespace orvanta
