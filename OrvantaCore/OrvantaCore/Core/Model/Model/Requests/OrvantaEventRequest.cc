#include "orvanta/Model/Requests/OrvantaEventRequest.h"

#include <algorithm>

#include "orvanta/Model/Events/OrvantaEvent.h"

namespace orvanta {

ORVANTA_IMPLEMENTATION(OrvantaEventRequest)

bool OrvantaEventRequest::init() {
  if (!Super::init()) return false;
  events_ = Array();
  return true;
}

bool OrvantaEventRequest::initWithEventArray(const Array& events) {
  if (!init()) return false;
  for (const Value& event : events) editEvents().append(event);
  return true;
}

void OrvantaEventRequest::mergeEventsFromEventRequest(OrvantaEventRequest& other,
                                                      bool& limitReached) {
  const Array* stored = other.events_.get();
  const Array theirs = stored != nullptr ? *stored : Array();
  Array& own = editEvents();
  const std::uint64_t room = kBatchLimit - own.size();  // wraps around above the limit: unlimited
  const auto taken = static_cast<std::size_t>(std::min<std::uint64_t>(room, theirs.size()));
  for (std::size_t i = 0; i < taken; ++i) {
    auto* event = theirs[i].as<OrvantaEvent>();
    if (event != nullptr && !event->identifiers().isPresent())
      event->setIdentifiers(other.identifiers_);
    own.append(theirs[i]);
  }
  if (taken != 0) other.editEvents().removeFirst(taken);
  if (other.storageId_.isPresent()) editIdsContained().append(other.storageId_.raw());
  limitReached = own.size() == kBatchLimit;
}

Ref<OrvantaRequestSpec> OrvantaEventRequest::requestSpec() const {
  if (const Array* events = events_.get()) {
    for (const Value& element : *events) {
      const auto* event = element.as<OrvantaEvent>();
      auto* identifiers = event != nullptr ? event->identifiers().get() : nullptr;
      if (identifiers != nullptr) {
        identifiers->removePropertiesSameWithIdentifiers(identifiers_.get());
      }
    }
  }
  return Super::requestSpec();
}

std::optional<std::int64_t> OrvantaEventRequest::priority() const {
  const Array* events = events_.get();
  if (events == nullptr || events->empty()) return 0;
  if (events->size() > 1) return 1;
  const auto* event = (*events)[0].as<OrvantaEvent>();
  return event != nullptr ? event->priority() : 0;
}

}  // namespace orvanta
