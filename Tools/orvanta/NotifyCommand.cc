#include <cstdio>
#include <ostream>

#include "Commands.h"
#include "Foundation/Array.h"
#include "Foundation/Description.h"
#include "Input.h"
#include "Mapping/RefusalRecorder.h"
#include "OrvantaNotificationServiceExtension/OrvantaNotificationServiceExtension.h"
#include "Platform/Linux/NotificationHost.h"
#include "Text.h"

namespace orvanta::tool {

namespace {

// ---- The ledger -----------------------------------------------------------

Value orNull(Value value) { return value.isNil() ? Value::null() : std::move(value); }
Value orNull(const std::optional<std::string>& text) { return text ? Value(*text) : Value::null(); }

Dictionary contentEntry(const UNNotificationContent& content) {
  return {{"title", orNull(content.title)},
          {"subtitle", orNull(content.subtitle)},
          {"body", orNull(content.body)},
          {"badge", orNull(content.badge)},
          {"sound", orNull(content.sound)},
          {"categoryIdentifier", content.categoryIdentifier},
          {"threadIdentifier", content.threadIdentifier},
          {"userInfo", content.userInfo},
          {"attachments", Array()}};
}

std::string_view nameOf(Delivery::By by) {
  return by == Delivery::By::expiry ? "expiry" : "pipeline";
}

Dictionary ledger(const HostReport& report, const std::vector<std::string>& log) {
  Array reasons;
  for (const std::string& reason : report.launch.unmet) reasons.append(reason);
  Array deliveries;
  for (const Delivery& delivery : report.deliveries) {
    deliveries.append(Dictionary{
        {"request", delivery.request},
        {"time", delivery.time},
        {"by", nameOf(delivery.by)},
        {"ignored", delivery.ignored},
        {"content", delivery.content ? Value(contentEntry(*delivery.content)) : Value::null()}});
  }
  Array shown;
  for (const ShownNotification& notification : report.shown) {
    Dictionary entry = contentEntry(notification.content);
    const bool original = notification.from == ShownNotification::From::original;
    entry.set("from", original ? "original" : "delivery");
    entry.set("buttons", Array());
    shown.append(entry);
  }
  Array entries;
  for (const std::string& entry : log) entries.append(entry);
  return {{"format", 1},
          {"launch", Dictionary{{"starts", report.launch.starts()}, {"reasons", reasons}}},
          {"deliveries", deliveries},
          {"shown", shown},
          {"categories", Value::null()},
          {"donations", Array()},
          {"log", entries}};
}

// ---- For a person ---------------------------------------------------------

/// Prints labelled lines; what follows a line break lines up behind the label.
class Sheet {
 public:
  explicit Sheet(std::ostream& out) : out_(out) {}

  void heading(std::string_view label, std::string_view text) { line("", 10, label, text); }
  void row(std::string_view label, std::string_view text) { line("  ", 10, label, text); }
  void step(double seconds, std::string_view text) {
    char label[32];
    std::snprintf(label, sizeof label, "%.3f s", seconds);
    row(label, text);
  }

 private:
  void line(std::string_view indent, std::size_t width, std::string_view label,
            std::string_view text) {
    out_ << indent << label;
    if (!text.empty()) {
      const std::size_t gap = label.size() < width ? width - label.size() : 1;
      out_ << std::string(gap, ' ') << printable(text, indent.size() + width);
    }
    out_ << '\n';
  }

  std::ostream& out_;
};

std::string counted(std::size_t count, const std::string& noun) {
  return std::to_string(count) + " " + noun + (count == 1 ? "" : "s");
}

/// What the payload asks for, as the extension reads it.
void printWishes(const Dictionary& payload, Sheet& sheet) {
  Platform silent;  // the extension's own reading has logged what there is to log
  const PlatformOverride override(silent);
  RefusalRecorder recorder;
  Ref<OrvantaPushObject> push;
  try {
    push = make<OrvantaPushObject>(payload);
  } catch (const Exception&) {
    push = nullptr;
  }
  if (!push) {
    sheet.row("", "no push object: " + (recorder.refusal() ? recorder.refusal()->description()
                                                           : std::string("refused")));
    sheet.row("", "so the content goes on unchanged");
    return;
  }
  if (const auto category = interactiveCategory(*push)) {
    sheet.row("asks for", counted(category->actions().get()->size(), "button") +
                              " under the category \"" +
                              std::string(*category->identifier().get()) + "\"");
  }
  if (const Url* media = push->mediaAttachmentURL().get()) {
    sheet.row("asks for", "media from " + std::string(media->absoluteString()));
  }
  if (const auto icon = pushIcon(*push)) {
    sheet.row("asks for", "the sender icon \"" + std::string(*icon) + "\"");
  }
}

void printContent(const UNNotificationContent& content, Sheet& sheet) {
  const auto text = [](const std::optional<std::string>& part) { return part.value_or("none"); };
  const auto name = [](const std::string& identifier) {
    return identifier.empty() ? std::string("none") : identifier;
  };
  sheet.row("title", text(content.title));
  sheet.row("subtitle", text(content.subtitle));
  sheet.row("body", text(content.body));
  sheet.row("badge", content.badge.isNil() ? "unchanged" : describe(content.badge));
  sheet.row("sound", content.sound.isNil() ? "none" : describe(content.sound));
  sheet.row("category", name(content.categoryIdentifier));
  sheet.row("thread", name(content.threadIdentifier));
  sheet.row("media", "none");
  sheet.row("buttons", "none");
}

void print(const Input& input, const HostReport& report, std::ostream& out) {
  Sheet sheet(out);
  sheet.heading("Payload", input.name + ", " + counted(input.text.size(), "byte"));
  if (report.launch.starts()) {
    sheet.heading("Start", "yes, the system starts the extension");
  } else {
    std::string reasons = "no, the system would not start the extension:";
    for (const std::string& reason : report.launch.unmet) reasons.append("\n").append(reason);
    sheet.heading("Start", reasons + "\nwhat follows is what the extension would do");
  }
  sheet.heading("Steps", "");
  sheet.step(0.0, "the extension gets the request");
  printWishes(input.object, sheet);
  for (const Delivery& delivery : report.deliveries) {
    std::string text =
        delivery.content ? "content delivered by the " : "no content delivered by the ";
    text.append(nameOf(delivery.by));
    sheet.step(delivery.time, text + (delivery.ignored ? ", which the system ignores" : ""));
  }
  if (report.deliveries.empty()) sheet.row("", "nothing was delivered");
  for (const ShownNotification& notification : report.shown) {
    const bool original = notification.from == ShownNotification::From::original;
    sheet.heading("Shown", !report.launch.starts() ? "had the system started the extension"
                           : original              ? "the original content"
                                                   : "the delivered content");
    printContent(notification.content, sheet);
  }
}

}  // namespace

ExitCode notify(const NotifyOptions& options, const LinuxPlatform& platform,
                const Streams& streams) {
  const Input input = readInput(options.payload, streams);
  NotificationHost host([] { return std::make_shared<OrvantaNotificationServiceExtension>(); });
  const HostReport report = host.run(input.object);
  if (options.json) {
    printJSON(ledger(report, platform.log().entries()), streams.out, /*pretty=*/true);
  } else {
    print(input, report, streams.out);
  }
  return ExitCode::done;
}

}  // namespace orvanta::tool
