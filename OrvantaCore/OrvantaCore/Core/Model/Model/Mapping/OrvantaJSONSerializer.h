#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "orvanta/Foundation/Value.h"

namespace orvanta {

/// Converts between JSON text and containers, as the platform's serializer does.
class OrvantaJSONSerializer {
 public:
  /// Returns compact JSON text for an array or dictionary; nothing if JSON cannot represent it.
  static std::optional<std::string> dataFromDictionary(const Value& object);
  /// Parses an array or a dictionary; nil if the data is not JSON for one.
  static Value dictionaryFromData(std::string_view data);
  /// Returns JSON text for an array or dictionary. On failure returns "{}" and writes a line to the
  /// system log, whatever the log level.
  static std::string jsonStringFromDict(const Value& object, bool prettyPrint);
};

}  // namespace orvanta
