#include "orvanta/Simulator/Report/TextReport.h"

#include <cstdio>
#include <ostream>

#include "orvanta/Foundation/Array.h"
#include "orvanta/Foundation/Description.h"
#include "orvanta/Foundation/Exception.h"
#include "orvanta/Foundation/KeyPath.h"
#include "orvanta/Model/Mapping/RefusalRecorder.h"
#include "orvanta/NotificationService/RequestedEnrichments.h"
#include "orvanta/Simulator/Report/TerminalText.h"

namespace orvanta {

namespace {

/// Prints labeled lines; what follows a line break is aligned after the label.
class LabelPrinter {
 public:
  explicit LabelPrinter(std::ostream& out) : out_(out) {}

  void heading(std::string_view label, std::string_view string = {}) { line("", label, string); }
  void row(std::string_view label, std::string_view string) { line("  ", label, string); }

 private:
  void line(std::string_view indent, std::string_view label, std::string_view string) {
    constexpr std::size_t kLabelWidth = 10;
    out_ << indent << label;
    if (!string.empty()) {
      const std::size_t gap = label.size() < kLabelWidth ? kLabelWidth - label.size() : 1;
      out_ << std::string(gap, ' ') << escapeForTerminal(string, indent.size() + kLabelWidth);
    }
    out_ << '\n';
  }

  std::ostream& out_;
};

/// Returns the strings that are not empty, one a line.
std::string joinLines(const std::vector<std::string>& strings) {
  std::string lines;
  for (const std::string& string : strings) {
    if (!string.empty()) lines.append(lines.empty() ? "" : "\n").append(string);
  }
  return lines;
}

/// A payload as the extension reads it.
struct PayloadReading {
  Ref<OrvantaPushObject> push;
  std::string refusal;  // why there is no push object
  RequestedEnrichments enrichments{};
  bool hasInvalidMediaURL = false;
};

PayloadReading readPayload(const Dictionary& payload) {
  Platform silent;  // the extension's own reading has logged what there is to log
  const PlatformOverride override(silent);
  RefusalRecorder recorder;
  PayloadReading reading;
  try {
    reading.push = make<OrvantaPushObject>(payload);
  } catch (const Exception&) {
    reading.push = nullptr;  // the recorder knows why
  }
  if (!reading.push) {
    reading.refusal = recorder.refusal() ? recorder.refusal()->description() : "refused";
    return reading;
  }
  reading.enrichments = requestedEnrichments(*reading.push);
  reading.hasInvalidMediaURL =
      reading.enrichments.media == nullptr && valueForKeyPath(payload, "_ov.mu").isString();
  return reading;
}

std::string describeRequest(const PayloadReading& reading) {
  if (!reading.push) return "nothing: " + reading.refusal;
  const RequestedEnrichments& asked = reading.enrichments;
  const auto when = [](bool condition, const std::string& line) {
    return condition ? line : std::string();
  };
  const std::string lines = joinLines({
      when(asked.category.has_value(), counted(asked.buttons, "button") + " under the category \"" +
                                           std::string(asked.category.value_or("")) + "\""),
      asked.media != nullptr ? "media from " + asked.media->description() : "",
      when(reading.hasInvalidMediaURL, "media, but \"_ov.mu\" is no URL, so there is none"),
      when(asked.buttonsWithoutCategory,
           "buttons, but without \"aps.category\", so there are none"),
      when(asked.senderIcon.has_value(),
           "the sender icon \"" + std::string(asked.senderIcon.value_or("")) + "\""),
  });
  return lines.empty() ? "nothing but its texts" : lines;
}

std::string attachmentLine(const UNNotificationAttachment::Parts& parts) {
  return parts.type + ", " + counted(parts.bytes, "byte") + ", " +
         std::string(parts.url.absoluteString());
}

/// Prints one notification as the user sees it.
class PresentationPrinter {
 public:
  PresentationPrinter(const SimulationReport& report, const PresentedNotification& notification,
                      const PathRewriter& rewritePaths, LabelPrinter& lines)
      : report_(report),
        notification_(notification),
        reading_(readPayload(notification.content.userInfo)),
        rewritePaths_(rewritePaths),
        lines_(lines) {}

  void print() {
    const UNNotificationContent& content = notification_.content;
    printSender(content);
    lines_.row("title", content.title.value_or("none"));
    lines_.row("subtitle", content.subtitle.value_or("none"));
    lines_.row("body", content.body.value_or("none"));
    lines_.row("badge", content.badge.isNil() ? "unchanged" : describe(content.badge));
    lines_.row("sound", soundLine(content.sound));
    lines_.row("thread", orNone(content.threadIdentifier));
    printMedia(content);
    printButtons();
  }

 private:
  static std::string orNone(const std::string& string) { return string.empty() ? "none" : string; }

  static std::string soundLine(const Value& sound) {
    constexpr std::size_t kMaxBytes = std::size_t{4} << 10U;
    if (sound.isNil()) return "none";
    const Dictionary* parts = sound.dictionary();
    return parts != nullptr ? describe(*parts, kMaxBytes) : describe(sound);
  }

  /// Why what a stage should have added is missing.
  std::string reason(Stage stage) const {
    const Event* failure = firstFailure(report_, notification_, stage);
    return failure != nullptr ? describeFailure(*failure)
                              : "it was not ready when the content was delivered";
  }

  void printSender(const UNNotificationContent& content) {
    if (const auto& communication = content.communication) {
      std::string string = "\"" + communication->sender + "\" with picture";
      if (communication->group) string += ", in the group \"" + *communication->group + "\"";
      lines_.row("sender", string);
    } else if (reading_.enrichments.senderIcon) {
      const bool isOld = report_.os < kFirstVersionWithCommunication;
      lines_.row("sender",
                 "none: " + (isOld ? "the system is older than iOS 15.0" : reason(Stage::sender)));
    }
  }

  void printMedia(const UNNotificationContent& content) {
    std::vector<std::string> attachments;
    for (const auto& attachment : content.attachments) {
      attachments.push_back(rewritePaths_(attachmentLine(attachment->parts())));
    }
    if (attachments.empty()) {
      const bool isMissing = reading_.enrichments.media != nullptr;
      attachments.push_back(isMissing ? "none: " + reason(Stage::media) : "none");
    }
    lines_.row("media", joinLines(attachments));
  }

  void printButtons() {
    std::string string;
    for (const auto& action : notification_.buttons) {
      std::string marks;
      const auto mark = [&](bool isSet, const char* name) {
        if (isSet) marks += (marks.empty() ? "" : ", ") + std::string(name);
      };
      mark((action->options() & UNNotificationActionOptionForeground) != 0, "opens the app");
      mark((action->options() & UNNotificationActionOptionDestructive) != 0, "destructive");
      mark((action->options() & UNNotificationActionOptionAuthenticationRequired) != 0,
           "unlocks first");
      mark(action->takesText(), "takes text");
      string += (string.empty() ? "" : "\n") + action->title() + " [" + action->identifier() + "]" +
                (marks.empty() ? "" : " (" + marks + ")");
    }
    if (string.empty()) {
      string = "none";
      const std::string& category = notification_.content.categoryIdentifier;
      if (reading_.enrichments.category && !report_.categories) {
        string += ": the category was not registered";
      } else if (!category.empty()) {
        string += ": no category \"" + category + "\" with buttons is registered";
      }
    }
    lines_.row("buttons", string);
  }

  const SimulationReport& report_;
  const PresentedNotification& notification_;
  PayloadReading reading_;
  const PathRewriter& rewritePaths_;
  LabelPrinter& lines_;
};

}  // namespace

void writeTextReport(const PayloadSource& source, const SimulationReport& report,
                     const PathRewriter& rewritePaths, std::ostream& out) {
  LabelPrinter lines(out);
  lines.heading("Payload", source.name + ", " + counted(source.bytes, "byte"));
  std::string start = "yes, the system starts the extension";
  if (!report.launch.starts()) {
    start = "no, the system would not start the extension:\n" +
            joinLines(report.launch.unmetConditions) +
            "\nwhat follows is what the extension would do";
  }
  lines.heading("Start", start);
  lines.heading("Asks for", describeRequest(readPayload(source.payload)));
  lines.heading("Steps");
  for (const Event& event : report.events) {
    char time[32];
    std::snprintf(time, sizeof time, "%.3f s", event.time);
    lines.row(time, rewritePaths(describe(event)));
  }
  if (report.deliveries.empty()) lines.row("", "nothing was delivered");
  for (const PresentedNotification& notification : report.presented) {
    const bool isOriginal = notification.from == PresentedNotification::From::original;
    std::string heading = !report.launch.starts() ? "had the system started the extension"
                          : isOriginal            ? "the original content"
                                                  : "the delivered content";
    if (report.presented.size() > 1) {
      heading += " of request " + std::to_string(notification.request);
    }
    lines.heading("Shown", heading);
    PresentationPrinter(report, notification, rewritePaths, lines).print();
  }
}

}  // namespace orvanta
