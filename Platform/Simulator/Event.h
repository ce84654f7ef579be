#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "orvanta/Platform/NSError.h"

namespace orvanta {

class EventLoop;

/// Which part of a notification an event is about.
enum class Stage : std::uint8_t { delivery, buttons, media, sender };

/// What can happen on the simulated device. The comments name the fields of Event that a kind uses.
enum class EventKind : std::uint8_t {
  requestReceived,
  categoriesRead,     // count: how many were registered
  categoriesWritten,  // count: how many are registered now
  downloadStarted,    // subject: URL
  downloadFinished,   // subject: URL; status; count: bytes; type: MIME type
  downloadFailed,     // subject: URL; error
  fileMoved,
  moveFailed,          // error
  attached,            // type: type identifier
  attachmentRejected,  // type: type hint; error
  imageFound,          // subject: the image's name
  imageMissing,        // subject: the image's name
  imageNotEncodable,
  interactionDonated,  // subject: the sender
  donationAccepted,
  donationFailed,
  contentUpdated,
  updateFailed,
  timeExpired,
  delivered,     // subject: "pipeline" or "expiry"
  noneDelivered  // the same, for a handler that was called without content
};

/// One thing that happened on the simulated device.
struct Event {
  EventKind kind;
  double time = 0.0;  // seconds since the first request
  int request = 0;    // from 1; 0 for none
  std::string subject{};
  std::optional<std::string> type{};
  std::optional<std::uint64_t> count{};
  std::optional<int> status{};  // HTTP
  Ref<NSError> error{};
  bool isIgnored = false;  // a delivery after the request's first one, which the system drops
};

/// Returns the kind's name in reports for programs, such as "download-failed".
std::string_view nameOf(EventKind kind);
std::string_view nameOf(Stage stage);
Stage stageOf(EventKind kind);

/// Whether the event ends its stage without a result.
bool isFailure(const Event& event);
/// Whether the event is a download that ended with an HTTP status of 400 or more.
bool isErrorPage(const Event& event);
/// Whether a file's type is why it was not attached.
bool isUnknownType(const Event& event);

/// Returns the sentence for people; no other code has sentences for events.
std::string describe(const Event& event);
/// Returns the reason that a failure is, as a part of a sentence.
std::string describeFailure(const Event& event);

/// What happened, in order. Stamps each event with the loop's time, and with the loop's request
/// unless it has one.
class EventLog {
 public:
  explicit EventLog(const EventLoop& loop) : loop_(loop) {}
  void add(Event event);
  const std::vector<Event>& events() const { return events_; }

 private:
  const EventLoop& loop_;
  std::vector<Event> events_;
};

}  // namespace orvanta
