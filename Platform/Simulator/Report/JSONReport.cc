#include "orvanta/Simulator/Report/JSONReport.h"

#include <optional>

#include "orvanta/Foundation/Array.h"
#include "orvanta/Simulator/SimulatedNotificationCenter.h"

namespace orvanta {

namespace {

Value orNull(Value value) { return value.isNil() ? Value::null() : std::move(value); }
Value orNull(const std::optional<std::string>& string) {
  return string ? Value(*string) : Value::null();
}

Array attachmentEntries(const UNNotificationContent& content, const PathRewriter& rewritePaths) {
  Array entries;
  for (const Ref<UNNotificationAttachment>& attachment : content.attachments) {
    const auto& parts = attachment->parts();
    entries.append(Dictionary{{"identifier", parts.identifier},
                              {"url", rewritePaths(parts.url.absoluteString())},
                              {"typeHint", orNull(parts.typeHint)},
                              {"type", parts.type},
                              {"bytes", parts.bytes}});
  }
  return entries;
}

Value communicationEntry(const std::optional<UNCommunication>& communication) {
  if (!communication) return Value::null();
  return Dictionary{{"sender", communication->sender},
                    {"senderHasImage", communication->senderHasImage},
                    {"group", orNull(communication->group)},
                    {"groupHasImage", communication->groupHasImage}};
}

Dictionary contentEntry(const UNNotificationContent& content, const PathRewriter& rewritePaths) {
  return {{"title", orNull(content.title)},
          {"subtitle", orNull(content.subtitle)},
          {"body", orNull(content.body)},
          {"badge", orNull(content.badge)},
          {"sound", orNull(content.sound)},
          {"categoryIdentifier", content.categoryIdentifier},
          {"threadIdentifier", content.threadIdentifier},
          {"userInfo", content.userInfo},
          {"attachments", attachmentEntries(content, rewritePaths)},
          {"communication", communicationEntry(content.communication)}};
}

Dictionary deliveryEntry(const Delivery& delivery, const PathRewriter& rewritePaths) {
  const bool byExpiry = delivery.by == Delivery::By::expiry;
  return {{"request", delivery.request},
          {"time", delivery.time},
          {"by", byExpiry ? "expiry" : "pipeline"},
          {"ignored", delivery.ignored},
          {"content", delivery.content ? Value(contentEntry(*delivery.content, rewritePaths))
                                       : Value::null()}};
}

Dictionary presentedEntry(const PresentedNotification& presented,
                          const PathRewriter& rewritePaths) {
  Dictionary entry = contentEntry(presented.content, rewritePaths);
  const bool isOriginal = presented.from == PresentedNotification::From::original;
  entry.set("from", isOriginal ? "original" : "delivery");
  entry.set("buttons", actionsAsJSON(presented.buttons));
  return entry;
}

Dictionary errorEntry(const NSError& error) {
  return {{"domain", error.domain()},
          {"code", error.code()},
          {"description", orNull(error.localizedDescription())}};
}

/// An event's facts; those that its kind does not have are left out.
Dictionary eventEntry(const Event& event, const PathRewriter& rewritePaths) {
  Dictionary entry{{"time", event.time},
                   {"kind", nameOf(event.kind)},
                   {"stage", nameOf(stageOf(event.kind))},
                   {"request", event.request}};
  if (!event.subject.empty()) entry.set("subject", rewritePaths(event.subject));
  if (event.status) entry.set("status", *event.status);
  if (event.count) entry.set("count", *event.count);
  if (event.type) entry.set("type", *event.type);
  if (event.error) entry.set("error", errorEntry(*event.error));
  if (event.isIgnored) entry.set("ignored", true);
  entry.set("text", rewritePaths(describe(event)));
  return entry;
}

/// Returns an array of what a function makes of each element.
template <class Elements, class Make>
Array arrayOf(const Elements& elements, Make&& make) {
  Array array;
  for (const auto& element : elements) array.append(make(element));
  return array;
}

}  // namespace

Dictionary reportAsJSON(const SimulationReport& report, const std::vector<std::string>& log,
                        const PathRewriter& rewritePaths) {
  const auto asString = [](const std::string& string) -> Value { return string; };
  const auto withPaths = [&](auto make) {
    return [&, make](const auto& element) { return make(element, rewritePaths); };
  };
  return {{"format", 2},
          {"launch", Dictionary{{"starts", report.launch.starts()},
                                {"reasons", arrayOf(report.launch.unmetConditions, asString)}}},
          {"events", arrayOf(report.events, withPaths(eventEntry))},
          {"deliveries", arrayOf(report.deliveries, withPaths(deliveryEntry))},
          {"shown", arrayOf(report.presented, withPaths(presentedEntry))},
          {"categories",
           report.categories ? Value(categoriesAsJSON(*report.categories)) : Value::null()},
          {"donations", arrayOf(report.donations, donationAsJSON)},
          {"log", arrayOf(log, asString)}};
}

}  // namespace orvanta
