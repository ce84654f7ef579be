#include "orvanta/Simulator/Event.h"

#include <utility>

#include "orvanta/Foundation/Description.h"
#include "orvanta/Simulator/EventLoop.h"

namespace orvanta {

namespace {

struct KindRow {
  std::string_view name;
  EventKind kind;
  Stage stage;
  bool isFailure = false;
};
constexpr KindRow kKinds[] = {
    {"request-received", EventKind::requestReceived, Stage::delivery},
    {"categories-read", EventKind::categoriesRead, Stage::buttons},
    {"categories-written", EventKind::categoriesWritten, Stage::buttons},
    {"download-started", EventKind::downloadStarted, Stage::media},
    {"download-finished", EventKind::downloadFinished, Stage::media},
    {"download-failed", EventKind::downloadFailed, Stage::media, true},
    {"file-moved", EventKind::fileMoved, Stage::media},
    {"move-failed", EventKind::moveFailed, Stage::media, true},
    {"attached", EventKind::attached, Stage::media},
    {"attachment-rejected", EventKind::attachmentRejected, Stage::media, true},
    {"image-found", EventKind::imageFound, Stage::sender},
    {"image-missing", EventKind::imageMissing, Stage::sender, true},
    {"image-not-encodable", EventKind::imageNotEncodable, Stage::sender, true},
    {"interaction-donated", EventKind::interactionDonated, Stage::sender},
    {"donation-accepted", EventKind::donationAccepted, Stage::sender},
    {"donation-failed", EventKind::donationFailed, Stage::sender, true},
    {"content-updated", EventKind::contentUpdated, Stage::sender},
    {"update-failed", EventKind::updateFailed, Stage::sender, true},
    {"time-expired", EventKind::timeExpired, Stage::delivery},
    {"delivered", EventKind::delivered, Stage::delivery},
    {"none-delivered", EventKind::noneDelivered, Stage::delivery},
};

constexpr const KindRow& rowOf(EventKind kind) { return kKinds[static_cast<std::size_t>(kind)]; }

constexpr bool isInOrder() {
  for (std::size_t i = 0; i < std::size(kKinds); ++i) {
    if (static_cast<std::size_t>(kKinds[i].kind) != i) return false;
  }
  return true;
}
static_assert(isInOrder(), "a kind is the index of its row");

std::string counted(const Event& event, const char* one, const char* many) {
  const std::string number = event.count ? std::to_string(*event.count) : "no";
  return number + " " + (event.count == 1 ? one : many);
}

std::string quoted(const std::string& string) { return "\"" + string + "\""; }

std::string reasonOf(const Event& event) { return describe(event.error->localizedDescription()); }

}  // namespace

std::string_view nameOf(EventKind kind) { return rowOf(kind).name; }

std::string_view nameOf(Stage stage) {
  constexpr std::string_view kNames[] = {"delivery", "buttons", "media", "sender"};
  return kNames[static_cast<std::size_t>(stage)];
}

Stage stageOf(EventKind kind) { return rowOf(kind).stage; }

bool isFailure(const Event& event) { return rowOf(event.kind).isFailure; }

bool isErrorPage(const Event& event) {
  return event.kind == EventKind::downloadFinished && event.status.value_or(0) >= 400;
}

bool isUnknownType(const Event& event) {
  constexpr std::int64_t kUnrecognizedFileType = 101;  // of UNErrorDomain
  return event.kind == EventKind::attachmentRejected &&
         event.error->code() == kUnrecognizedFileType;
}

std::string describe(const Event& event) {
  switch (event.kind) {
    case EventKind::requestReceived:
      return event.request == 1 ? "the extension gets the request"
                                : "the extension gets a second request";
    case EventKind::categoriesRead:
      return "the registered categories are read: " + counted(event, "category", "categories");
    case EventKind::categoriesWritten:
      return counted(event, "category", "categories") + " registered";
    case EventKind::downloadStarted:
      return "the download of " + event.subject + " starts";
    case EventKind::downloadFinished:
      return "the download is there: " +
             (event.status ? "status " + std::to_string(*event.status) + ", " : "") +
             counted(event, "byte", "bytes") + ", " + event.type.value_or("no MIME type");
    case EventKind::downloadFailed:
      return "the download fails: " + reasonOf(event);
    case EventKind::fileMoved:
      return "it is moved into the caches";
    case EventKind::moveFailed:
      return "it cannot be moved into the caches: " + reasonOf(event);
    case EventKind::attached:
      return "it is attached as " + event.type.value_or("");
    case EventKind::attachmentRejected:
      return "it cannot be attached as " + event.type.value_or("no type") + ": " + reasonOf(event);
    case EventKind::imageFound:
      return "the picture " + quoted(event.subject) + " is found";
    case EventKind::imageMissing:
      return "there is no picture " + quoted(event.subject) +
             " in the resources that can be decoded";
    case EventKind::imageNotEncodable:
      return "the picture cannot be encoded";
    case EventKind::interactionDonated:
      return "an interaction with " + quoted(event.subject) + " is donated";
    case EventKind::donationAccepted:
      return "the donation is accepted";
    case EventKind::donationFailed:
      return "the donation fails";
    case EventKind::contentUpdated:
      return "the content is updated from the intent";
    case EventKind::updateFailed:
      return "the content cannot be updated from the intent";
    case EventKind::timeExpired:
      return "the time is over";
    case EventKind::delivered:
    case EventKind::noneDelivered:
      return std::string(event.kind == EventKind::delivered ? "content" : "no content") +
             " is delivered by the " + event.subject +
             (event.isIgnored ? ", which the system ignores" : "");
  }
  return {};
}

std::string describeFailure(const Event& event) {
  if (event.kind != EventKind::downloadFinished) return describe(event);
  return "the download ended with status " + std::to_string(event.status.value_or(0));
}

void EventLog::add(Event event) {
  event.time = loop_.now();
  if (event.request == 0) event.request = loop_.request();
  events_.push_back(std::move(event));
}

}  // namespace orvanta
