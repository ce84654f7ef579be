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

void SetterModel::setText(Held<String> text) {
  if (text.get() == "known") throw Exception(Exception::kInvalidArgument, "known trouble");
  if (text.get() == "unknown key") throw Exception::undefinedKey("SetterModel", "x", true);
  if (text.get() == "standard") throw std::runtime_error("standard trouble");
  if (text.get() == "memory") throw std::bad_alloc();
  if (text.get() == "tables") setKeyPathPropertyDictionary({{"after", "before"}});
  if (text && !text.get()) before_ = "another kind";
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

Dictionary dictionaryOf(std::string_view json) {
  const Value value = parsed(json);
  if (value.dictionary() == nullptr) throw std::invalid_argument(std::string(json));
  return *value.dictionary();
}

bool update(OrvantaBaseModel& model, std::string_view json) {
  const Dictionary dictionary = dictionaryOf(json);
  return model.updateWithDictionary(&dictionary);
}

std::vector<Value> oneOfEachKind() {
  return {
      Value::null(),
      true,
      2,
      (std::uint64_t{1} << 63U) + 5,
      2.5,
      1.5F,
      Date{1.5},
      "7",
      *Url::parse("https://example.com/a"),
      Array({1, "a"}),
      Dictionary({{"x", 1}}),
      make<LeafModel>(),
      Value(&LeafModel::classObject()),
  };
}

Outcome outcomeOf(Kind kind, std::string_view encoding) {
  const bool isNumber = kind >= Kind::boolean && kind <= Kind::real32;
  if (encoding.size() == 1 && encoding.find_first_of("BiqQfd") == 0) {
    return isNumber || kind == Kind::string ? Outcome::read : Outcome::refusedWithLog;
  }
  if (encoding == "@\"NSURL\"") {
    const bool isTextOrUrl = kind == Kind::string || kind == Kind::url;
    return isTextOrUrl ? Outcome::converted : Outcome::refused;
  }
  if (encoding == "@\"NSDate\"") {
    if (kind == Kind::null) return Outcome::keptAsItIs;
    return isNumber || kind == Kind::date ? Outcome::converted : Outcome::refused;
  }
  return Outcome::keptAsItIs;
}

}  // namespace orvanta::testing
