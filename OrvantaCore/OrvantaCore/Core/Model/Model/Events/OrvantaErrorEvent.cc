#include "orvanta/Model/Events/OrvantaErrorEvent.h"

namespace orvanta {

ORVANTA_IMPLEMENTATION(OrvantaErrorEvent)

bool OrvantaErrorEvent::initWithErrorMessage(const std::shared_ptr<const std::string>& errorMessage,
                                             const std::shared_ptr<const Array>& events) {
  if (!initInternal()) return false;
  errorMessage_ = errorMessage;
  eventArray_ = events;
  return true;
}

Ref<OrvantaErrorEvent> OrvantaErrorEvent::eventWithErrorMessage(
    const std::shared_ptr<const std::string>& errorMessage,
    const std::shared_ptr<const Array>& events) {
  return make<Self>(&Self::initWithErrorMessage, errorMessage, events);
}

}  // namespace orvanta
