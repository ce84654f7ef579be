#pragma once

#include <span>
#include <string>
#include <vector>

#include "orvanta/Foundation/Value.h"

namespace orvanta {

/// The names of a dotted path, as string values: "aps.alert" is "aps", "alert".
std::vector<Value> splitKeyPath(std::string_view path);

/// The dotted path of names.
std::string joinedKeyPath(std::span<const Value> path);

/// What stands at a path below a value. A dictionary answers the key's entry, an object its
/// property; an array applies the rest of the path to each of its elements and answers the array
/// of the results, with a null object for a missing one. Nil where a step is missing. Any other
/// value on the way has no keys: the undefined-key exception.
Value valueForKeyPath(const Value& receiver, std::span<const Value> path);
Value valueForKeyPath(const Value& receiver, std::string_view path);
Value valueForKeyPath(const Dictionary& receiver, std::span<const Value> path);
Value valueForKeyPath(const Dictionary& receiver, std::string_view path);

}  // namespace orvanta
