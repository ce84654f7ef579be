#include "orvanta/Model/Mapping/OrvantaJSONSerializer.h"

#include "orvanta/Foundation/Array.h"
#include "orvanta/Foundation/Dictionary.h"
#include "orvanta/Foundation/JSON.h"
#include "orvanta/Platform/Platform.h"

namespace orvanta {

static std::optional<std::string> jsonText(const Value& object, JSONStyle style) {
  std::string text;
  const bool isContainer = object.array() != nullptr || object.dictionary() != nullptr;
  if (!isContainer || !writeJSON(object, text, style)) return std::nullopt;
  return text;
}

std::optional<std::string> OrvantaJSONSerializer::dataFromDictionary(const Value& object) {
  return jsonText(object, {});
}

Value OrvantaJSONSerializer::dictionaryFromData(std::string_view data) {
  Value value = parseJSON(data);
  const bool isContainer = value.array() != nullptr || value.dictionary() != nullptr;
  return isContainer ? value : Value();
}

std::string OrvantaJSONSerializer::jsonStringFromDict(const Value& object, bool prettyPrint) {
  if (auto json = jsonText(object, {.pretty = prettyPrint})) return *std::move(json);
  if (SystemLog* log = Platform::current().systemLog()) {
    log->write(
        "+[OrvantaJSONSerializer jsonStringFromDict:withPrettyPrint:]: error: "
        "The data couldn’t be written because it isn’t in the correct format.");
  }
  return "{}";
}

}  // namespace orvanta
