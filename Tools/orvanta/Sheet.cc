#include "orvanta/Tool/Sheet.h"

#include <algorithm>
#include <cstdio>
#include <ostream>
#include <span>

#include "orvanta/Foundation/Array.h"
#include "orvanta/Foundation/Description.h"
#include "orvanta/Foundation/KeyPath.h"
#include "orvanta/Model/Mapping/RefusalRecorder.h"
#include "orvanta/NotificationService/OrvantaNotificationServiceExtension.h"
#include "orvanta/Tool/Text.h"

namespace orvanta::tool {

namespace {

/// Prints labelled lines; what follows a line break lines up behind the label.
class Lines {
 public:
  explicit Lines(std::ostream& out) : out_(out) {}

  void heading(std::string_view label, std::string_view text = {}) { line("", label, text); }
  void row(std::string_view label, std::string_view text) { line("  ", label, text); }

 private:
  void line(std::string_view indent, std::string_view label, std::string_view text) {
    constexpr std::size_t kLabelWidth = 10;
    out_ << indent << label;
    if (!text.empty()) {
      const std::size_t gap = label.size() < kLabelWidth ? kLabelWidth - label.size() : 1;
      out_ << std::string(gap, ' ') << printable(text, indent.size() + kLabelWidth);
    }
    out_ << '\n';
  }

  std::ostream& out_;
};

std::string counted(std::size_t count, const std::string& noun) {
  return std::to_string(count) + " " + noun + (count == 1 ? "" : "s");
}

/// What a payload asks for, as the extension reads it.
struct Wishes {
  std::string refusal;  // why there is no push object; empty when there is one
  std::optional<std::string> category;
  std::size_t buttons = 0;
  std::optional<std::string> media;
  std::optional<std::string> icon;
  bool badMedia = false;  // a media text that is no URL
  bool nameless = false;  // buttons without a category to register them under
};

Wishes wishesOf(const Dictionary& payload) {
  Platform silent;  // the extension's own reading has logged what there is to log
  const PlatformOverride override(silent);
  RefusalRecorder recorder;
  Ref<OrvantaPushObject> push;
  try {
    push = make<OrvantaPushObject>(payload);
  } catch (const Exception&) {
    push = nullptr;  // the recorder knows why
  }
  Wishes wishes;
  if (!push) {
    wishes.refusal = recorder.refusal() ? recorder.refusal()->description() : "refused";
    return wishes;
  }
  if (const auto category = interactiveCategory(*push)) {
    wishes.category = *category->identifier().get();
    wishes.buttons = category->actions().get()->size();
  }
  if (const Url* media = push->mediaAttachmentURL().get()) {
    wishes.media = media->description();
  } else {
    wishes.badMedia = valueForKeyPath(payload, "_ov.mu").isString();
  }
  wishes.nameless = !wishes.category && !push->interactiveCategoryIdentifier().get() &&
                    push->interactiveActions().get() != nullptr &&
                    !push->interactiveActions().get()->empty();
  if (const auto icon = pushIcon(*push)) wishes.icon = *icon;
  return wishes;
}

void printWishes(const Wishes& wishes, Lines& lines) {
  if (!wishes.refusal.empty()) {
    lines.heading("Asks for", "nothing: " + wishes.refusal);
    return;
  }
  std::string text;
  const auto add = [&](const std::string& wish) { text += (text.empty() ? "" : "\n") + wish; };
  if (wishes.category) {
    add(counted(wishes.buttons, "button") + " under the category \"" + *wishes.category + "\"");
  }
  if (wishes.media) add("media from " + *wishes.media);
  if (wishes.badMedia) add("media, but \"_ov.mu\" is no URL, so there is none");
  if (wishes.nameless) add("buttons, but without \"aps.category\", so there are none");
  if (wishes.icon) add("the sender icon \"" + *wishes.icon + "\"");
  lines.heading("Asks for", text.empty() ? "nothing but its texts" : text);
}

/// The last of the steps that begins with one of these, and says why something is missing.
std::string reasonAmong(std::span<const Timeline::Step> steps,
                        std::initializer_list<std::string_view> begins) {
  const auto step =
      std::find_if(steps.rbegin(), steps.rend(), [&](const Timeline::Step& candidate) {
        return std::any_of(begins.begin(), begins.end(), [&](std::string_view begin) {
          return candidate.text.starts_with(begin);
        });
      });
  return step != steps.rend() ? step->text : "it was not ready when the content was delivered";
}

std::string attachmentLine(const UNNotificationAttachment::Parts& parts) {
  return parts.type + ", " + counted(parts.bytes, "byte") + ", " +
         std::string(parts.url.absoluteString());
}

/// The notification as the user sees it.
class ShownPrinter {
 public:
  ShownPrinter(const HostReport& report, Wishes wishes, OperatingSystemVersion os,
               const std::function<std::string(std::string_view)>& neutral, Lines& lines)
      : report_(report), wishes_(std::move(wishes)), os_(os), neutral_(neutral), lines_(lines) {}

  void print(const ShownNotification& shown) {
    steps_ =
        std::span(report_.steps).subspan(shown.steps.first, shown.steps.second - shown.steps.first);
    const UNNotificationContent& content = shown.content;
    printSender(content);
    lines_.row("title", content.title.value_or("none"));
    lines_.row("subtitle", content.subtitle.value_or("none"));
    lines_.row("body", content.body.value_or("none"));
    lines_.row("badge", content.badge.isNil() ? "unchanged" : describe(content.badge));
    lines_.row("sound", soundLine(content.sound));
    lines_.row("thread", orNone(content.threadIdentifier));
    printMedia(content);
    printButtons(shown);
  }

 private:
  static std::string orNone(const std::string& text) { return text.empty() ? "none" : text; }

  static std::string soundLine(const Value& sound) {
    constexpr std::size_t kMost = std::size_t{4} << 10U;
    if (sound.isNil()) return "none";
    const Dictionary* parts = sound.dictionary();
    return parts != nullptr ? describe(*parts, kMost) : describe(sound);
  }

  void printSender(const UNNotificationContent& content) {
    if (const auto& communication = content.communication) {
      std::string text = "\"" + communication->sender + "\" with picture";
      if (communication->group) text += ", in the group \"" + *communication->group + "\"";
      lines_.row("sender", text);
    } else if (wishes_.icon) {
      const bool isOld = os_ < OperatingSystemVersion{15, 0, 0};
      lines_.row(
          "sender",
          "none: " + (isOld ? std::string("the system is older than iOS 15.0")
                            : reasonAmong(steps_, {"there is no picture", "the picture cannot",
                                                   "the donation fails", "the content cannot"})));
    }
  }

  void printMedia(const UNNotificationContent& content) {
    std::string text;
    for (const auto& attachment : content.attachments) {
      text += (text.empty() ? "" : "\n") + neutral_(attachmentLine(attachment->parts()));
    }
    if (text.empty()) {
      text = "none";
      if (wishes_.media) {
        text += ": " + reasonAmong(steps_, {"the download fails", "it cannot be"});
      }
    }
    lines_.row("media", text);
  }

  void printButtons(const ShownNotification& shown) {
    std::string text;
    for (const auto& action : shown.buttons) {
      std::string marks;
      const auto mark = [&](bool isSet, const char* name) {
        if (isSet) marks += (marks.empty() ? "" : ", ") + std::string(name);
      };
      mark((action->options() & UNNotificationActionOptionForeground) != 0, "opens the app");
      mark((action->options() & UNNotificationActionOptionDestructive) != 0, "destructive");
      mark((action->options() & UNNotificationActionOptionAuthenticationRequired) != 0,
           "unlocks first");
      mark(action->takesText(), "takes text");
      text += (text.empty() ? "" : "\n") + action->title() + " [" + action->identifier() + "]" +
              (marks.empty() ? "" : " (" + marks + ")");
    }
    if (text.empty()) {
      text = "none";
      const std::string& category = shown.content.categoryIdentifier;
      if (wishes_.category && !report_.categories) {
        text += ": the category was not registered";
      } else if (!category.empty()) {
        text += ": no category \"" + category + "\" with buttons is registered";
      }
    }
    lines_.row("buttons", text);
  }

  const HostReport& report_;
  std::span<const Timeline::Step> steps_;
  Wishes wishes_;
  OperatingSystemVersion os_;
  const std::function<std::string(std::string_view)>& neutral_;
  Lines& lines_;
};

}  // namespace

void printSheet(const Input& payload, const HostReport& report, OperatingSystemVersion os,
                const std::function<std::string(std::string_view)>& neutral, std::ostream& out) {
  Lines lines(out);
  lines.heading("Payload", payload.name + ", " + counted(payload.text.size(), "byte"));
  const Wishes wishes = wishesOf(payload.object);
  std::string start = "yes, the system starts the extension";
  if (!report.launch.starts()) {
    start = "no, the system would not start the extension:";
    for (const std::string& reason : report.launch.unmet) start.append("\n").append(reason);
    start += "\nwhat follows is what the extension would do";
  }
  lines.heading("Start", start);
  printWishes(wishes, lines);
  lines.heading("Steps");
  for (const Timeline::Step& step : report.steps) {
    char time[32];
    std::snprintf(time, sizeof time, "%.3f s", step.time);
    lines.row(time, neutral(step.text));
  }
  if (report.deliveries.empty()) lines.row("", "nothing was delivered");
  for (const ShownNotification& shown : report.shown) {
    const bool isOriginal = shown.from == ShownNotification::From::original;
    std::string heading = !report.launch.starts() ? "had the system started the extension"
                          : isOriginal            ? "the original content"
                                                  : "the delivered content";
    if (report.shown.size() > 1) {
      heading += " of request " + std::to_string(&shown - report.shown.data() + 1);
    }
    lines.heading("Shown", heading);
    ShownPrinter(report, wishesOf(shown.content.userInfo), os, neutral, lines).print(shown);
  }
}

}  // namespace orvanta::tool
