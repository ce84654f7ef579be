#pragma once

#include <span>
#include <string>
#include <vector>

#include "orvanta/Foundation/Value.h"

namespace orvanta {

/// Splits a dotted path into string values: "aps.alert" into "aps" and "alert".
std::vector<Value> splitKeyPath(std::string_view path);

/// Joins names to a dotted path.
std::string joinedKeyPath(std::span<const Value> path);

/// Returns the value at a path. A dictionary on the way is asked for the key's entry, an object for
/// its property. An array applies the rest of the path to each element and returns an array of the
/// results, with a null for each missing one. Returns nil if a key is missing. Any other value on
/// the way has no keys: throws the undefined-key exception.
Value valueForKeyPath(const Value& receiver, std::span<const Value> path);
Value valueForKeyPath(const Value& receiver, std::string_view path);
Value valueForKeyPath(const Dictionary& receiver, std::span<const Value> path);
Value valueForKeyPath(const Dictionary& receiver, std::string_view path);

}  // namespace orvanta
