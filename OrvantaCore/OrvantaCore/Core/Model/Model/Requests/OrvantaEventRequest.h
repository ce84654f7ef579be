#pragma once

#include "orvanta/Model/Requests/OrvantaBaseRequest.h"

namespace orvanta {

/// Sends a batch of events. Events are stored as requests with one event each; the sending layer
/// merges stored requests into a leading one. Elements of `events` that are not events count toward
/// the limit, but their identifiers are neither set nor removed.
class OrvantaEventRequest : public OrvantaBaseRequest {
  ORVANTA_UNRANKED_REQUEST(OrvantaEventRequest, OrvantaRequestPathTypeEvent,
                           OrvantaBaseResponseModel)

  static constexpr std::uint64_t kBatchLimit = 100;

  /// Oldest first. Elements restored from a dictionary are events if they name their class under
  /// "klazz".
  ORVANTA_PROPERTY("events", strong, MutableArray, events, setEvents)

  bool init() override;
  /// Takes all events, also more than kBatchLimit.
  bool initWithEventArray(const Array& events);
  /// Mutable access to `events`.
  Array& editEvents() { return events_.editArray(); }

  /// Moves the first events of `other` to the end of this request, up to kBatchLimit events in all;
  /// if there are more than that already, moves all of them. A moved event without identifiers gets
  /// those of `other`. They share one object, which requestSpec of this request changes: give
  /// `other` a copy first if it is still used. Always adds the storage id of `other` to the
  /// contained ids. Sets `limitReached` if there are now exactly kBatchLimit events.
  void mergeEventsFromEventRequest(OrvantaEventRequest& other, bool& limitReached);

  /// Removes from each event the identifiers that are equal in the request, and returns the spec.
  /// The events stay changed; so they do after `description`, which calls this.
  Ref<OrvantaRequestSpec> requestSpec() const override;
  /// 1 for more than one event, the event's priority for one, 0 for none.
  std::optional<std::int64_t> priority() const override;
};

}  // namespace orvanta
