#include "orvanta/Simulator/RemoteNotification.h"

#include <algorithm>
#include <charconv>
#include <map>
#include <string_view>

#include "orvanta/Foundation/Array.h"
#include "orvanta/Foundation/Description.h"
#include "orvanta/Foundation/Number.h"

namespace orvanta {

namespace {

struct AlertPart {
  std::string_view key;
  std::string_view localizationKey;
  std::string_view localizationArguments;
  std::optional<std::string> UNNotificationContent::*member;
};
constexpr AlertPart kAlertParts[] = {
    {"title", "title-loc-key", "title-loc-args", &UNNotificationContent::title},
    {"subtitle", "subtitle-loc-key", "subtitle-loc-args", &UNNotificationContent::subtitle},
    {"body", "loc-key", "loc-args", &UNNotificationContent::body},
};

constexpr std::size_t kMaxArgumentBytes = std::size_t{4} << 10U;
constexpr std::size_t kMaxStringBytes = std::size_t{64} << 10U;

bool isNonEmptyString(const Value& value) { return !value.string().value_or("").empty(); }

/// Truncates a longer string at a character's start and marks it with " …".
void truncate(std::string& string, std::size_t maxBytes) {
  if (string.size() <= maxBytes) return;
  while (maxBytes != 0 && (static_cast<unsigned char>(string[maxBytes]) & 0xC0U) == 0x80) {
    --maxBytes;
  }
  string.replace(maxBytes, std::string::npos, " …");
}

std::string describedArgument(const Value& value) {
  if (const Dictionary* dictionary = value.dictionary()) {
    return describe(*dictionary, kMaxArgumentBytes);
  }
  // Only dictionaries are described with a limit; in one, an array takes no less room.
  if (value.array() != nullptr &&
      describe(Dictionary{{"array", value}}, kMaxArgumentBytes).size() > kMaxArgumentBytes) {
    return "( …";
  }
  std::string text = describe(value);
  truncate(text, kMaxArgumentBytes);
  return text;
}

/// Replaces "%@" by the arguments in order and "%1$@" by number; a missing argument is empty. Each
/// argument and the whole are truncated, since a short payload can name a long argument many times.
std::string withArguments(std::string_view format, const Array* arguments) {
  std::string text;
  std::map<std::size_t, std::string> described;
  std::size_t next = 0;
  while (!format.empty() && text.size() <= kMaxStringBytes) {
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
  truncate(text, kMaxStringBytes);
  return text;
}

std::optional<std::string> alertString(const Dictionary& alert, const AlertPart& part,
                                       NSBundle& bundle) {
  const Value& key = alert[part.localizationKey];
  if (isNonEmptyString(key)) {
    return withArguments(bundle.localizedStringForKey(*key.string()),
                         alert[part.localizationArguments].array());
  }
  const auto text = alert[part.key].string();
  return text ? std::optional<std::string>(*text) : std::nullopt;
}

}  // namespace

LaunchDecision launchDecision(const Dictionary& payload) {
  LaunchDecision decision;
  static const Dictionary kNothing;
  const Dictionary* entry = payload["aps"].dictionary();
  const Dictionary& aps = entry != nullptr ? *entry : kNothing;
  if (aps["mutable-content"] != Value(1)) {
    decision.unmetConditions.emplace_back("\"aps.mutable-content\" is not 1");
  }
  const Value& alert = aps["alert"];
  bool shows = isNonEmptyString(alert);
  if (const Dictionary* texts = alert.dictionary()) {
    shows = std::any_of(std::begin(kAlertParts), std::end(kAlertParts), [&](const auto& part) {
      return isNonEmptyString((*texts)[part.key]) ||
             isNonEmptyString((*texts)[part.localizationKey]);
    });
  }
  if (!shows) decision.unmetConditions.emplace_back("\"aps.alert\" has no text to show");
  return decision;
}

UNNotificationContent contentForPayload(const Dictionary& payload, NSBundle& bundle) {
  UNNotificationContent content;
  content.userInfo = payload;
  const Dictionary* aps = payload["aps"].dictionary();
  if (aps == nullptr) return content;

  const Value& alert = (*aps)["alert"];
  if (const auto text = alert.string()) content.body = *text;
  if (const Dictionary* texts = alert.dictionary()) {
    for (const AlertPart& part : kAlertParts)
      content.*part.member = alertString(*texts, part, bundle);
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
