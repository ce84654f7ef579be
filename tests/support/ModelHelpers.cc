#include "support/ModelHelpers.h"

#include <stdexcept>

#include "support/ModelZoo.h"

namespace orvanta::testing {

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
