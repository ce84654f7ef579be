#include "orvanta/Simulator/SimulatedIntents.h"

#include <stdexcept>

#include "orvanta/Foundation/Array.h"
#include "orvanta/Foundation/JSON.h"

namespace orvanta {

Dictionary donationAsJSON(const Donation& donation) {
  const INSendMessageIntent& intent = donation.interaction.intent;
  Value recipients = Value::null();
  if (intent.recipients) {
    Array people;
    for (const INPerson& person : *intent.recipients) {
      people.append(Dictionary{{"handle", person.personHandle.value},
                               {"hasImage", person.image.has_value()}});
    }
    recipients = std::move(people);
  }
  const auto& group = intent.speakableGroupName;
  return {{"sender", intent.sender.personHandle.value},
          {"senderHasImage", intent.sender.image.has_value()},
          {"recipients", recipients},
          {"groupName", group ? Value(group->spokenPhrase) : Value::null()},
          {"groupImage", intent.speakableGroupNameImage.has_value()},
          {"outcome", donation.failed ? "error" : "ok"}};
}

void SimulatedIntents::donateInteraction(const INInteraction& interaction,
                                         ErrorCompletion completion) {
  log_.add({.kind = EventKind::interactionDonated,
            .subject = interaction.intent.sender.personHandle.value});
  loop_.scheduleIn(
      behavior_.donationDelay, [this, interaction, completion = std::move(completion)] {
        donations_.push_back({interaction, behavior_.donationFails});
        if (behavior_.donationFails) {
          constexpr std::int64_t kDonationFailed = 1900;
          const Ref<NSError> error = NSError::errorWithDomain(
              "IntentsErrorDomain", kDonationFailed, "The interaction could not be donated.");
          log_.add({.kind = EventKind::donationFailed, .error = error});
          completion(error);
          return;
        }
        log_.add({.kind = EventKind::donationAccepted});
        std::string json;
        writeJSON(donationAsJSON(donations_.back()), json, {.escapeSlashes = false});
        try {
          state_.append("donations.jsonl", json + "\n");
        } catch (const std::runtime_error& error) {
          failure_ = error.what();  // an exception must not pass through the component
        }
        completion(nullptr);
      });
}

Intents::Update SimulatedIntents::contentByUpdating(const UNNotificationContent& content,
                                                    const INSendMessageIntent& provider) {
  if (behavior_.updateFails) {
    constexpr std::int64_t kContentProvidingInvalid = 1501;
    Ref<NSError> error = NSError::errorWithDomain("UNErrorDomain", kContentProvidingInvalid,
                                                  "The content providing object is invalid.");
    log_.add({.kind = EventKind::updateFailed, .error = error});
    return {nullptr, std::move(error)};
  }
  log_.add({.kind = EventKind::contentUpdated});
  auto updated = std::make_shared<UNNotificationContent>(content);
  const auto& group = provider.speakableGroupName;
  updated->communication =
      UNCommunication{.sender = provider.sender.personHandle.value,
                      .senderHasImage = provider.sender.image.has_value(),
                      .group = group ? std::optional(group->spokenPhrase) : std::nullopt,
                      .groupHasImage = provider.speakableGroupNameImage.has_value()};
  return {updated, nullptr};
}

}  // namespace orvanta
