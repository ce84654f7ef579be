#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "orvanta/Foundation/Value.h"

namespace orvanta {

/// JSON text and values.
class OrvantaJSONSerializer {
 public:
  /// The compact text of an array or dictionary; none when no text can be made of the object.
  static std::optional<std::string> dataFromDictionary(const Value& object);
  /// The array or dictionary of a text; nil when it is none.
  static Value dictionaryFromData(std::string_view data);
  /// The text of an array or dictionary. On failure "{}", and a line in the system log, whatever
  /// the log level.
  static std::string jsonStringFromDict(const Value& object, bool prettyPrint);
};

}  // namespace orvanta
