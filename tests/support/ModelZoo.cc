#include "support/ModelZoo.h"

#include <new>
#include <stdexcept>

namespace orvanta::testing {

ORVANTA_IMPLEMENTATION(ScalarModel)
ORVANTA_IMPLEMENTATION(LeafModel)
ORVANTA_IMPLEMENTATION(ObjectModel)
ORVANTA_IMPLEMENTATION(DottedModel)
ORVANTA_IMPLEMENTATION(NestingModel)
ORVANTA_IMPLEMENTATION(AncestorModel)
ORVANTA_IMPLEMENTATION(DescendantModel)
ORVANTA_IMPLEMENTATION(SetterModel)
ORVANTA_IMPLEMENTATION(ComputedModel)
ORVANTA_IMPLEMENTATION(FaultyGetterModel)
ORVANTA_IMPLEMENTATION(SelfWritingModel)
ORVANTA_IMPLEMENTATION(DefaultsModel)
ORVANTA_IMPLEMENTATION(PushHolderModel)
ORVANTA_IMPLEMENTATION(UntouchedModel)

void SetterModel::setText(PropertyValue<String> text) {
  if (text.get() == "known") throw Exception(Exception::kInvalidArgument, "known trouble");
  if (text.get() == "unknown key") throw Exception::undefinedKey("SetterModel", "x", true);
  if (text.get() == "standard") throw std::runtime_error("standard trouble");
  if (text.get() == "memory") throw std::bad_alloc();
  if (text.get() == "tables") setKeyPathPropertyDictionary({{"after", "before"}});
  if (text.isPresent() && !text.get()) before_ = "another kind";
  text_ = std::move(text);
}

Value ComputedModel::readTwice(const OrvantaBaseModel& model) {
  return 2 * static_cast<const ComputedModel&>(model).half();
}
Value ComputedModel::readPercent(const OrvantaBaseModel& model) {
  return std::int64_t(200 * static_cast<const ComputedModel&>(model).half());
}

Value FaultyGetterModel::throwKnown(const OrvantaBaseModel& /*model*/) {
  throw Exception(Exception::kInvalidArgument, "known trouble");
}
Value FaultyGetterModel::throwStandard(const OrvantaBaseModel& /*model*/) {
  throw std::runtime_error("standard trouble");
}

Value SelfWritingModel::countEntries(const OrvantaBaseModel& model) {
  const auto& self = static_cast<const SelfWritingModel&>(model);
  if (self.counting_) return {};
  self.counting_ = true;
  const std::size_t entries = self.dictionaryValue().size();
  self.counting_ = false;
  ++self.timesCounted_;
  return entries;
}

bool DefaultsModel::updateWithDictionary(const Dictionary* dictionary) {
  count_ = kUnsetInteger;
  unit_ = "piece";
  return Super::updateWithDictionary(dictionary);
}

}  // namespace orvanta::testing
