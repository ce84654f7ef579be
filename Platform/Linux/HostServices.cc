#include "orvanta/Linux/HostServices.h"

#include <fstream>
#include <iterator>
#include <stdexcept>
#include <system_error>

#include "orvanta/Foundation/Array.h"
#include "orvanta/Foundation/JSON.h"
#include "orvanta/Foundation/Number.h"

namespace orvanta {

namespace {

std::string counted(std::size_t count, const char* one, const char* many) {
  return std::to_string(count) + " " + (count == 1 ? one : many);
}

std::string jsonText(const Value& value, bool pretty) {
  std::string text;
  writeJSON(value, text, {.pretty = pretty, .escapeSlashes = false});
  return text;
}

Ref<UNNotificationAction> actionFrom(const Dictionary& action) {
  std::string identifier(action["identifier"].string().value_or(""));
  std::string title(action["title"].string().value_or(""));
  const auto number = action["options"].number();
  const auto options = static_cast<unsigned>(number ? number->unsignedLongLongValue() : 0);
  if (action["textInput"] == Value(true)) {
    return UNTextInputNotificationAction::actionWithIdentifier(std::move(identifier),
                                                               std::move(title), options);
  }
  return UNNotificationAction::actionWithIdentifier(std::move(identifier), std::move(title),
                                                    options);
}

}  // namespace

// ---- Categories -----------------------------------------------------------

HostNotificationCenter::HostNotificationCenter(EventLoop& loop, Timeline& timeline,
                                               const std::filesystem::path& stateFolder,
                                               double readDelay)
    : loop_(loop),
      timeline_(timeline),
      file_(stateFolder / "categories.json"),
      readDelay_(readDelay) {
  if (!std::filesystem::exists(file_)) return;
  std::ifstream in(file_, std::ios::binary);
  if (!std::filesystem::is_regular_file(file_) || !in) {
    throw std::runtime_error(file_.string() + ": cannot be read");
  }
  const std::string text(std::istreambuf_iterator<char>(in), {});
  const Value stored = parseJSON(text);
  if (stored.array() == nullptr) {
    throw std::runtime_error(file_.string() + ": no JSON array of categories");
  }
  for (const Value& element : *stored.array()) {
    const Dictionary* category = element.dictionary();
    if (category == nullptr) continue;
    UNNotificationCategory made{std::string((*category)["identifier"].string().value_or("")), {}};
    if (const Array* actions = (*category)["actions"].array()) {
      for (const Value& action : *actions) {
        if (action.dictionary() != nullptr)
          made.actions.push_back(actionFrom(*action.dictionary()));
      }
    }
    categories_.insert(std::move(made));
  }
}

void HostNotificationCenter::getNotificationCategories(CategoriesCompletion completion) {
  loop_.scheduleIn(readDelay_, [this, completion = std::move(completion)] {
    timeline_.add("the registered categories are read: " +
                  counted(categories_.size(), "category", "categories"));
    completion(categories_);
  });
}

void HostNotificationCenter::setNotificationCategories(
    const UNNotificationCategorySet& categories) {
  categories_ = categories;
  wasWritten_ = true;
  timeline_.add(counted(categories.size(), "category", "categories") + " registered");
  // Whole or not at all: another reader never sees half of it.
  const std::filesystem::path fresh = file_.string() + ".new";
  std::ofstream out(fresh, std::ios::binary);
  out << jsonText(categoriesAsJSON(categories_), true) << '\n';
  std::error_code error;
  if (out.flush()) std::filesystem::rename(fresh, file_, error);
  if (!out || error) failure_ = file_.string() + ": cannot be written";
}

Array actionsAsJSON(const std::vector<Ref<UNNotificationAction>>& actions) {
  Array result;
  for (const Ref<UNNotificationAction>& action : actions) {
    result.append(Dictionary{{"identifier", action->identifier()},
                             {"title", action->title()},
                             {"options", action->options()},
                             {"textInput", action->takesText()}});
  }
  return result;
}

Array categoriesAsJSON(const UNNotificationCategorySet& categories) {
  Array result;
  for (const UNNotificationCategory& category : categories) {
    result.append(Dictionary{{"identifier", category.identifier},
                             {"actions", actionsAsJSON(category.actions)}});
  }
  return result;
}

// ---- Intents --------------------------------------------------------------

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

HostIntents::HostIntents(EventLoop& loop, Timeline& timeline,
                         const std::filesystem::path& stateFolder, Behaviour behaviour)
    : loop_(loop),
      timeline_(timeline),
      file_(stateFolder / "donations.jsonl"),
      behaviour_(behaviour) {}

void HostIntents::donateInteraction(const INInteraction& interaction, ErrorCompletion completion) {
  timeline_.add("an interaction with \"" + interaction.intent.sender.personHandle.value +
                "\" is donated");
  loop_.scheduleIn(
      behaviour_.donationDelay, [this, interaction, completion = std::move(completion)] {
        donations_.push_back({interaction, behaviour_.donationFails});
        timeline_.add(behaviour_.donationFails ? "the donation fails" : "the donation is accepted");
        if (behaviour_.donationFails) {
          constexpr std::int64_t kDonationFailed = 1900;
          completion(NSError::errorWithDomain("IntentsErrorDomain", kDonationFailed,
                                              "The interaction could not be donated."));
          return;
        }
        std::ofstream out(file_, std::ios::binary | std::ios::app);
        out << jsonText(donationAsJSON(donations_.back()), false) << '\n';
        if (!out.flush()) failure_ = file_.string() + ": cannot be written";
        completion(nullptr);
      });
}

Intents::Update HostIntents::contentByUpdating(const UNNotificationContent& content,
                                               const INSendMessageIntent& provider) {
  if (behaviour_.updateFails) {
    timeline_.add("the content cannot be updated from the intent");
    constexpr std::int64_t kContentProvidingInvalid = 1501;
    return {nullptr, NSError::errorWithDomain("UNErrorDomain", kContentProvidingInvalid,
                                              "The content providing object is invalid.")};
  }
  timeline_.add("the content is updated from the intent");
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
