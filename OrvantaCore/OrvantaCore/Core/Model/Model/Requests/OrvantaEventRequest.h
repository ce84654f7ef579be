#pragma once

#include "orvanta/Model/Requests/OrvantaBaseRequest.h"

namespace orvanta {

/// A batch of events. Events are stored as requests of one event each; before they are sent, stored
/// requests are folded into a leading one. Elements of `events` that are no events count as
/// elements, but are neither given identifiers nor stripped of them.
class OrvantaEventRequest : public OrvantaBaseRequest {
  ORVANTA_UNRANKED_REQUEST(OrvantaEventRequest, OrvantaRequestPathTypeEvent,
                           OrvantaBaseResponseModel)

  static constexpr std::uint64_t kBatchLimit = 100;

  /// The oldest first. Restored ones are events when they name their class under "klazz".
  ORVANTA_PROPERTY("events", strong, MutableArray, events, setEvents)

  bool init() override;
  /// All these events, however many.
  bool initWithEventArray(const Array& events);
  /// The events, for changing them in place.
  Array& editEvents() { return events_.editArray(); }

  /// Moves the first events of the other request behind this one's, as many as the batch limit
  /// leaves room for; with more than that here already, all of them. A moved event without
  /// identifiers gets the other request's, the same object: a spec of this one strips that too, so
  /// give the other a copy first if it goes on. The other's storage id is added to the
  /// ids contained in any case. `limitReached` tells whether there are now exactly kBatchLimit.
  void mergeEventsFromEventRequest(OrvantaEventRequest& other, bool& limitReached);

  /// Removes from the identifiers of every event what the request's own have the same of, for good,
  /// and makes the spec. `description` makes one on its way, and so strips the events as well.
  Ref<OrvantaRequestSpec> requestSpec() const override;
  /// 1 with more than one event, else that of the event; 0 without.
  std::optional<std::int64_t> priority() const override;
};

}  // namespace orvanta
