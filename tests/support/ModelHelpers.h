#pragma once

#include <stdexcept>
#include <string>
#include <string_view>

#include "orvanta/Model/Mapping/OrvantaBaseModel.h"
#include "support/Values.h"

namespace orvanta::testing {

/// Throws `std::invalid_argument` when the JSON is not a dictionary.
inline Dictionary dictionaryFromJSON(std::string_view json) {
  const Value value = parseJSON(json);
  if (value.dictionary() == nullptr) throw std::invalid_argument(std::string(json));
  return *value.dictionary();
}

inline bool updateFromJSON(OrvantaBaseModel& model, std::string_view json) {
  const Dictionary dictionary = dictionaryFromJSON(json);
  return model.updateWithDictionary(&dictionary);
}

/// A new model, or nil when its initializer fails.
template <class M>
Ref<M> modelFromJSON(std::string_view json) {
  return make<M>(dictionaryFromJSON(json));
}

}  // namespace orvanta::testing
