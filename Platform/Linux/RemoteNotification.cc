#include "Platform/Linux/RemoteNotification.h"

#include <algorithm>
#include <string_view>

#include "Foundation/Array.h"
#include "Foundation/Description.h"

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

bool isNonEmptyText(const Value& value) { return !value.string().value_or("").empty(); }

/// Puts the arguments in for "%@", in order, and "%1$@", by number; one that is missing is empty.
std::string withArguments(std::string_view format, const Array* arguments) {
  std::string text;
  std::size_t next = 0;
  while (!format.empty()) {
    const auto percent = format.find('%');
    text.append(format.substr(0, percent));
    if (percent == std::string_view::npos) break;
    format.remove_prefix(percent + 1);
    std::size_t index = next;
    std::string_view rest = format;
    if (rest.size() >= 3 && rest[0] >= '1' && rest[0] <= '9' && rest[1] == '$') {
      index = static_cast<std::size_t>(rest[0] - '1');
      rest.remove_prefix(2);
    }
    if (!rest.starts_with('@')) {
      text += '%';
      if (format.starts_with('%')) format.remove_prefix(1);
      continue;
    }
    if (rest.size() == format.size()) ++next;
    if (arguments != nullptr && index < arguments->size()) text += describe((*arguments)[index]);
    format = rest.substr(1);
  }
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
  const Dictionary* aps = payload["aps"].dictionary();
  if (aps == nullptr) {
    verdict.unmet.emplace_back(payload.contains("aps") ? "\"aps\" is no dictionary"
                                                       : "there is no \"aps\"");
    return verdict;
  }
  if (!(*aps)["mutable-content"].isNumber() || (*aps)["mutable-content"] != Value(1)) {
    verdict.unmet.emplace_back("\"aps.mutable-content\" is not 1");
  }
  const Value& alert = (*aps)["alert"];
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
    for (const AlertText& part : kAlertTexts) content.*part.member = alertText(*texts, part, bundle);
  }
  if (const Value& badge = (*aps)["badge"]; badge.isNumber()) content.badge = badge;
  const Value& sound = (*aps)["sound"];
  if (sound.isString() || sound.dictionary() != nullptr) content.sound = sound;
  content.categoryIdentifier = (*aps)["category"].string().value_or("");
  content.threadIdentifier = (*aps)["thread-id"].string().value_or("");
  return content;
}

}  // namespace orvanta
