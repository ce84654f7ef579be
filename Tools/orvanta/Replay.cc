#include "orvanta/Tool/Replay.h"

#include <cmath>

#include "orvanta/Foundation/Exception.h"
#include "orvanta/Foundation/JSON.h"
#include "orvanta/Model/Mapping/RefusalRecorder.h"
#include "orvanta/NotificationService/OrvantaNotificationServiceExtension.h"
#include "orvanta/NotificationService/RequestedEnrichments.h"
#include "orvanta/Simulator/RemoteNotification.h"
#include "orvanta/Tool/LineReader.h"
#include "orvanta/Tool/Text.h"

namespace orvanta::tool {

namespace {

constexpr std::size_t kMaxFirstBadLines = 10;
constexpr std::size_t kMaxKeys = 1000;  // "klazz" entries can nest in more ways than these

/// Returns the path to the rejected key, through nested models.
std::string keyOf(const RefusalRecorder& recorder) {
  std::string key;
  if (!recorder.refusal()) return key;
  for (const Refusal::Step& step : recorder.refusal()->steps) {
    if (step.keyPath.empty()) continue;
    key.append(key.empty() ? "" : " > ").append(step.keyPath);
  }
  return key;
}

}  // namespace

void ReplayCounts::add(const ReplayCounts& other) {
  payloads += other.payloads;
  deliveries += other.deliveries;
  plain += other.plain;
  buttons += other.buttons;
  media += other.media;
  icon += other.icon;
  undefinedKey += other.undefinedKey;
  refused += other.refused;
  for (const auto& [key, count] : other.refusedBy) refusedBy[key] += count;
  badLines += other.badLines;
  firstBadLines.insert(other.firstBadLines.begin(), other.firstBadLines.end());
  while (firstBadLines.size() > kMaxFirstBadLines)
    firstBadLines.erase(std::prev(firstBadLines.end()));
  for (const auto& [size, count] : other.sizes) sizes[size] += count;
}

std::uint64_t ReplayCounts::sizeAt(double share) const {
  const auto wanted = static_cast<std::uint64_t>(std::ceil(share * static_cast<double>(payloads)));
  std::uint64_t seen = 0;
  for (const auto& [size, count] : std::map(sizes.begin(), sizes.end())) {
    seen += count;
    if (seen >= wanted) return size;
  }
  return 0;
}

void Replay::reject(const RecordedLine& line, const std::string& reason) {
  ++counts_.badLines;
  // A job sees its lines in their order, so its first ten hold all that can be among the first.
  if (counts_.firstBadLines.size() < kMaxFirstBadLines) {
    counts_.firstBadLines.emplace(line.number, line.place + ": " + escapeForTerminal(reason));
  }
}

void Replay::run(const RecordedLine& line) {
  if (line.isTooLong) {
    return reject(line, "more than " + std::to_string(LineReader::kMaxLineBytes) + " bytes");
  }
  JSONError error;
  const Value value = parseJSON(line.text, &error);
  const Dictionary* payload = value.dictionary();
  if (value.isNil()) {
    return reject(line,
                  "column " + std::to_string(error.offset + 1) + ": " + std::string(error.reason));
  }
  if (payload == nullptr) return reject(line, "is " + std::string(value.kindName()));
  ++counts_.payloads;
  ++counts_.sizes[line.text.size()];

  const PlatformOverride override(platform_);
  RefusalRecorder recorder;
  Ref<OrvantaPushObject> push;
  try {
    push = make<OrvantaPushObject>(*payload);
    if (!push) {
      ++counts_.refused;
      const std::string key = keyOf(recorder);
      const bool isNew = !counts_.refusedBy.contains(key);
      ++counts_.refusedBy[isNew && counts_.refusedBy.size() >= kMaxKeys ? "other keys" : key];
    }
  } catch (const Exception&) {
    ++counts_.undefinedKey;
  }
  if (push) {
    const RequestedEnrichments asked = requestedEnrichments(*push);
    const bool hasButtons = asked.category.has_value();
    const bool hasMedia = asked.media != nullptr;
    const bool hasIcon = asked.senderIcon.has_value();
    counts_.buttons += hasButtons ? 1 : 0;
    counts_.media += hasMedia ? 1 : 0;
    counts_.icon += hasIcon ? 1 : 0;
    counts_.plain += hasButtons || hasMedia || hasIcon ? 0 : 1;
  }

  const auto extension = std::make_shared<OrvantaNotificationServiceExtension>();
  extension->didReceiveNotificationRequest(
      {.identifier = "replay",
       .content = std::make_shared<const UNNotificationContent>(
           contentForPayload(*payload, *platform_.mainBundle()))},
      [this](const std::shared_ptr<const UNNotificationContent>& /*content*/) {
        ++counts_.deliveries;
      });
  platform_.runAll();
}

}  // namespace orvanta::tool
