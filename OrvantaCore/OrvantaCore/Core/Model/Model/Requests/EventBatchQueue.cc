#include "orvanta/Model/Requests/EventBatchQueue.h"

#include <utility>

namespace orvanta {

std::size_t eventCount(const OrvantaEventRequest& request) {
  const Array* events = request.events().get();
  return events != nullptr ? events->size() : 0;
}

std::vector<Ref<OrvantaEventRequest>> EventBatchQueue::add(Ref<OrvantaEventRequest> request) {
  std::vector<Ref<OrvantaEventRequest>> complete;
  if (batch_) {
    bool limitReached = false;
    batch_->mergeEventsFromEventRequest(*request, limitReached);
    if (!limitReached) return complete;
    complete.push_back(finish());
    if (eventCount(*request) == 0) return complete;
    if (const auto* identifiers = request->identifiers().get()) {
      // The moved events share the identifiers, and the spec of the batch strips those.
      request->setIdentifiers(make<OrvantaIdentifiers>(identifiers->dictionaryValue()));
    }
  }
  batch_ = std::move(request);
  if (eventCount(*batch_) >= OrvantaEventRequest::kBatchLimit) complete.push_back(finish());
  return complete;
}

Ref<OrvantaEventRequest> EventBatchQueue::finish() { return std::exchange(batch_, nullptr); }

}  // namespace orvanta
