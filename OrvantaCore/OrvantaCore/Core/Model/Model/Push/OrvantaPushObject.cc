#include "orvanta/Model/Push/OrvantaPushObject.h"

#include "orvanta/Foundation/KeyPath.h"
#include "orvanta/Model/Mapping/RefusalRecorder.h"

namespace orvanta {

ORVANTA_IMPLEMENTATION(OrvantaPushObject)

bool OrvantaPushObject::updateWithDictionary(const Dictionary* dictionary) {
  badge_ = static_cast<std::uint64_t>(kUnsetInteger);
  static const std::vector<Value> kAlertPath = splitKeyPath("aps.alert");
  static const std::vector<Value> kActionPath = splitKeyPath("_ov.act");
  const auto read = [&](std::span<const Value> keyPath, std::string_view property) {
    return dictionary != nullptr ? readKeyPath(*dictionary, keyPath, property) : Value();
  };
  alert_ = make<OrvantaPushObjectAlert>(&OrvantaPushObjectAlert::initWithValue,
                                        read(kAlertPath, "alert"));
  const Value clickAction = read(kActionPath, "action");
  {
    const RefusalRecorder ignored;  // a click action that cannot be read is not a failure
    action_ = make<OrvantaPushObjectAction>(&OrvantaPushObjectAction::initWithValue, clickAction);
  }
  if (auto* action = action_.get()) action->setDeeplinkURLAsURL();

  bool updated = false;
  if (alert_.isPresent()) {
    updated = Super::updateWithDictionary(dictionary);
  } else {
    recordFailedModel("aps.alert", "alert");
  }
  actionDictionary_ = defaultActionDictionary_;
  return updated;
}

void OrvantaPushObject::setInteractiveActionIdentifier(PropertyValue<String> identifier) {
  interactiveActionIdentifier_ = std::move(identifier);
  if (!interactiveActionIdentifier_.isPresent()) {
    actionDictionary_ = defaultActionDictionary_;
    return;
  }
  const Array* actions = interactiveActions_.get();
  if (actions == nullptr) return;
  for (const Value& element : *actions) {
    const auto* action = element.as<OrvantaUserNotificationAction>();
    if (action != nullptr && action->identifier().get() &&
        action->identifier().get() == interactiveActionIdentifier_.get()) {
      actionDictionary_ = action->actionDictionary();
      return;
    }
  }
}

Dictionary OrvantaPushObject::dictionaryValueWithPolicy(bool classInfo) const {
  return flattened(alert_.get(), classInfo, Super::dictionaryValueWithPolicy(classInfo));
}

}  // namespace orvanta
