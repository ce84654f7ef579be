#include "orvanta/Simulator/SimulatedNotificationCenter.h"

#include <stdexcept>

#include "orvanta/Foundation/JSON.h"
#include "orvanta/Foundation/Number.h"

namespace orvanta {

namespace {

constexpr const char* kFile = "categories.json";

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

UNNotificationCategory categoryFrom(const Dictionary& entry) {
  UNNotificationCategory category{std::string(entry["identifier"].string().value_or("")), {}};
  if (const Array* actions = entry["actions"].array()) {
    for (const Value& action : *actions) {
      if (const Dictionary* parts = action.dictionary()) {
        category.actions.push_back(actionFrom(*parts));
      }
    }
  }
  return category;
}

}  // namespace

SimulatedNotificationCenter::SimulatedNotificationCenter(EventLoop& loop, EventLog& log,
                                                         StateStore& state, double readDelay)
    : loop_(loop), log_(log), state_(state), readDelay_(readDelay) {
  const std::optional<std::string> json = state_.read(kFile);
  if (!json) return;
  const Value stored = parseJSON(*json);
  if (stored.array() == nullptr) {
    throw std::runtime_error(state_.location(kFile) + ": no JSON array of categories");
  }
  for (const Value& element : *stored.array()) {
    if (const Dictionary* entry = element.dictionary()) categories_.insert(categoryFrom(*entry));
  }
}

void SimulatedNotificationCenter::getNotificationCategories(CategoriesCompletion completion) {
  loop_.scheduleIn(readDelay_, [this, completion = std::move(completion)] {
    log_.add({.kind = EventKind::categoriesRead, .count = categories_.size()});
    completion(categories_);
  });
}

void SimulatedNotificationCenter::setNotificationCategories(
    const UNNotificationCategorySet& categories) {
  categories_ = categories;
  wasWritten_ = true;
  log_.add({.kind = EventKind::categoriesWritten, .count = categories.size()});
  std::string json;
  writeJSON(categoriesAsJSON(categories_), json, {.pretty = true, .escapeSlashes = false});
  try {
    state_.write(kFile, json + "\n");
  } catch (const std::runtime_error& error) {
    failure_ = error.what();  // an exception must not pass through the component
  }
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

}  // namespace orvanta
