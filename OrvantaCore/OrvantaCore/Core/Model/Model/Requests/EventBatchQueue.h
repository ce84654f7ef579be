#pragma once

#include <cstddef>
#include <vector>

#include "orvanta/Model/Requests/OrvantaEventRequest.h"

namespace orvanta {

/// The number of events in a request; 0 if `events` is nil.
std::size_t eventCount(const OrvantaEventRequest& request);

/// Merges stored event requests, oldest first, into batches that are ready to be sent.
///
///     EventBatchQueue queue;
///     for (const auto& request : stored) {
///       for (const auto& batch : queue.add(request)) send(batch->requestSpec());
///     }
///     if (const auto batch = queue.finish()) send(batch->requestSpec());
///
/// A batch is the first of its requests: it keeps that request's storage id and identifiers, and
/// lists the storage ids of the others in `idsContained`. It holds OrvantaEventRequest::kBatchLimit
/// events, or more if a single request did. What does not fit opens the next batch.
class EventBatchQueue {
 public:
  /// Adds a request and returns the batches that are complete: none, one or two. The queue changes
  /// the request; a request without events is merged like any other.
  std::vector<Ref<OrvantaEventRequest>> add(Ref<OrvantaEventRequest> request);

  /// Returns the incomplete batch and empties the queue; nil if there is none.
  Ref<OrvantaEventRequest> finish();

 private:
  Ref<OrvantaEventRequest> batch_;
};

}  // namespace orvanta
