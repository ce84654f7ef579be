#pragma once

#include <string_view>
#include <vector>

#include "orvanta/Model/Mapping/OrvantaBaseModel.h"
#include "support/Values.h"

namespace orvanta::testing {

/// The dictionary of a JSON text.
Dictionary dictionaryOf(std::string_view json);
/// Updates a model from a JSON text.
bool update(OrvantaBaseModel& model, std::string_view json);
/// A new model initialised from a JSON text, or nil.
template <class M>
Ref<M> made(std::string_view json) {
  return make<M>(dictionaryOf(json));
}

/// A value of every kind that can be stored.
std::vector<Value> oneOfEachKind();
/// What becomes of a value of a kind that a dictionary holds for a property of a type code.
enum class Outcome { keptAsItIs, read, converted, refused, refusedWithLog };
Outcome outcomeOf(Kind kind, std::string_view encoding);

}  // namespace orvanta::testing
