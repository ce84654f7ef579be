#include "orvanta/Tool/Ledger.h"

#include "orvanta/Foundation/Array.h"

namespace orvanta::tool {

namespace {

using Neutral = std::function<std::string(std::string_view)>;

Value orNull(Value value) { return value.isNil() ? Value::null() : std::move(value); }
Value orNull(const std::optional<std::string>& text) { return text ? Value(*text) : Value::null(); }

Array attachmentEntries(const UNNotificationContent& content, const Neutral& neutral) {
  Array entries;
  for (const Ref<UNNotificationAttachment>& attachment : content.attachments) {
    const auto& parts = attachment->parts();
    entries.append(Dictionary{{"identifier", parts.identifier},
                              {"url", neutral(parts.url.absoluteString())},
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

Dictionary contentEntry(const UNNotificationContent& content, const Neutral& neutral) {
  return {{"title", orNull(content.title)},
          {"subtitle", orNull(content.subtitle)},
          {"body", orNull(content.body)},
          {"badge", orNull(content.badge)},
          {"sound", orNull(content.sound)},
          {"categoryIdentifier", content.categoryIdentifier},
          {"threadIdentifier", content.threadIdentifier},
          {"userInfo", content.userInfo},
          {"attachments", attachmentEntries(content, neutral)},
          {"communication", communicationEntry(content.communication)}};
}

Dictionary deliveryEntry(const Delivery& delivery, const Neutral& neutral) {
  const bool byExpiry = delivery.by == Delivery::By::expiry;
  return {{"request", delivery.request},
          {"time", delivery.time},
          {"by", byExpiry ? "expiry" : "pipeline"},
          {"ignored", delivery.ignored},
          {"content",
           delivery.content ? Value(contentEntry(*delivery.content, neutral)) : Value::null()}};
}

Dictionary shownEntry(const ShownNotification& shown, const Neutral& neutral) {
  Dictionary entry = contentEntry(shown.content, neutral);
  const bool isOriginal = shown.from == ShownNotification::From::original;
  entry.set("from", isOriginal ? "original" : "delivery");
  entry.set("buttons", actionsAsJSON(shown.buttons));
  return entry;
}

/// An array of what a function makes of each element.
template <class Elements, class Make>
Array arrayOf(const Elements& elements, Make&& make) {
  Array array;
  for (const auto& element : elements) array.append(make(element));
  return array;
}

}  // namespace

Dictionary ledger(const HostReport& report, const std::vector<std::string>& log,
                  const Neutral& neutral) {
  const auto asItIs = [](const std::string& text) -> Value { return text; };
  return {{"format", 1},
          {"launch", Dictionary{{"starts", report.launch.starts()},
                                {"reasons", arrayOf(report.launch.unmet, asItIs)}}},
          {"deliveries", arrayOf(report.deliveries,
                                 [&](const Delivery& d) { return deliveryEntry(d, neutral); })},
          {"shown", arrayOf(report.shown,
                            [&](const ShownNotification& s) { return shownEntry(s, neutral); })},
          {"categories",
           report.categories ? Value(categoriesAsJSON(*report.categories)) : Value::null()},
          {"donations", arrayOf(report.donations, donationAsJSON)},
          {"log", arrayOf(log, asItIs)}};
}

}  // namespace orvanta::tool
