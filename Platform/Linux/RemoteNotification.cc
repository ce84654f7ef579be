#include "orvanta/Linux/RemoteNotification.h"

#include <algorithm>
#include <charconv>
#include <map>
#include <string_view>

#include "orvanta/Foundation/Array.h"
#include "orvanta/Foundation/Description.h"
#include "orvanta/Foundation/Number.h"

namespace orvanta {

namespace {

struct AlertText {
  std::string_view key;
  std::string_view localizationKey;
  std::string_view localizationArguments;
  std::optional<std::string> UNNotificationContent::*member;
};
constexpr AlertText kAlertTexts[] = {
    {"title", "title-loc-key", "title-loc-args", &UNNotificationContent::title},
    {"subtitle", "subtitle-loc-key", "subtitle-loc-args", &UNNotificationContent::subtitle},
    {"body", "loc-key", "loc-args", &UNNotificationContent::body},
};

constexpr std::size_t kMostArgument = std::size_t{4} << 10U;
constexpr std::size_t kMostText = std::size_t{64} << 10U;

bool isNonEmptyText(const Value& value) { return !value.string().value_or("").empty(); }

/// Cuts a text that is longer, and no character in two.
void cut(std::string& text, std::size_t most) {
  if (text.size() <= most) return;
  while (most != 0 && (static_cast<unsigned char>(text[most]) & 0xC0U) == 0x80) --most;
  text.replace(most, std::string::npos, " …");
}

std::string describedArgument(const Value& value) {
  if (const Dictionary* dictionary = value.dictionary()) {
    return describe(*dictionary, kMostArgument);
  }
  // Only dictionaries are described with a limit; in one, an array takes no less room.
  if (value.array() != nullptr &&
      describe(Dictionary{{"array", value}}, kMostArgument).size() > kMostArgument) {
    return "( …";
  }
  std::string text = describe(value);
  cut(text, kMostArgument);
  return text;
}

/// Puts the arguments in for "%@", in order, and "%1$@", by number; one that is missing is empty.
/// An argument's text is cut after 4 KiB, the whole after 64 KiB.
std::string withArguments(std::string_view format, const Array* arguments) {
  std::string text;
  std::map<std::size_t, std::string> described;
  std::size_t next = 0;
  while (!format.empty() && text.size() <= kMostText) {
    const auto percent = format.find('%');
    text.append(format.substr(0, percent));
    if (percent == std::string_view::npos) break;
    format.remove_prefix(percent + 1);
    std::size_t index = next;
    std::string_view rest = format;
    std::size_t number = 0;
    const auto digits = std::from_chars(rest.data(), rest.data() + rest.size(), number);
    const auto length = static_cast<std::size_t>(digits.ptr - rest.data());
    if (digits.ec == std::errc() && number > 0 && rest.substr(length).starts_with('$')) {
      index = number - 1;
      rest.remove_prefix(length + 1);
    }
    if (!rest.starts_with('@')) {
      text += '%';
      if (format.starts_with('%')) format.remove_prefix(1);
      continue;
    }
    if (rest.size() == format.size()) ++next;
    format = rest.substr(1);
    if (arguments == nullptr || index >= arguments->size()) continue;
    const auto [place, isNew] = described.try_emplace(index);
    if (isNew) place->second = describedArgument((*arguments)[index]);
    text += place->second;
  }
  cut(text, kMostText);
  return text;
}

std::optional<std::string> alertText(const Dictionary& alert, const AlertText& part,
                                     NSBundle& bundle) {
  const Value& key = alert[part.localizationKey];
  if (isNonEmptyText(key)) {
    return withArguments(bundle.localizedStringForKey(*key.string()),
                         alert[part.localizationArguments].array());
  }
  const auto text = alert[part.key].string();
  return text ? std::optional<std::string>(*text) : std::nullopt;
}

}  // namespace

LaunchVerdict launchVerdict(const Dictionary& payload) {
  LaunchVerdict verdict;
  static const Dictionary kNothing;
  const Dictionary* held = payload["aps"].dictionary();
  const Dictionary& aps = held != nullptr ? *held : kNothing;
  if (aps["mutable-content"] != Value(1)) {
    verdict.unmet.emplace_back("\"aps.mutable-content\" is not 1");
  }
  const Value& alert = aps["alert"];
  bool shows = isNonEmptyText(alert);
  if (const Dictionary* texts = alert.dictionary()) {
    shows = std::any_of(std::begin(kAlertTexts), std::end(kAlertTexts), [&](const auto& part) {
      return isNonEmptyText((*texts)[part.key]) || isNonEmptyText((*texts)[part.localizationKey]);
    });
  }
  if (!shows) verdict.unmet.emplace_back("\"aps.alert\" has no text to show");
  return verdict;
}

UNNotificationContent contentForPayload(const Dictionary& payload, NSBundle& bundle) {
  UNNotificationContent content;
  content.userInfo = payload;
  const Dictionary* aps = payload["aps"].dictionary();
  if (aps == nullptr) return content;

  const Value& alert = (*aps)["alert"];
  if (const auto text = alert.string()) content.body = *text;
  if (const Dictionary* texts = alert.dictionary()) {
    for (const AlertText& part : kAlertTexts)
      content.*part.member = alertText(*texts, part, bundle);
  }
  if (const auto badge = (*aps)["badge"].number()) {
    content.badge = badge->isBoolean() ? Value(badge->intValue()) : (*aps)["badge"];
  }
  const Value& sound = (*aps)["sound"];
  if (sound.isString() || sound.dictionary() != nullptr) content.sound = sound;
  content.categoryIdentifier = (*aps)["category"].string().value_or("");
  content.threadIdentifier = (*aps)["thread-id"].string().value_or("");
  return content;
}

}  // namespace orvanta
