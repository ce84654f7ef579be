#include <string>

#include "fuzzer.h"
#include "orvanta/Foundation/Array.h"
#include "orvanta/Foundation/Description.h"
#include "orvanta/Foundation/Dictionary.h"
#include "orvanta/Foundation/JSON.h"
#include "orvanta/Model/Mapping/OrvantaJSONSerializer.h"

// The input is JSON or arbitrary bytes.

namespace orvanta::fuzzing {

namespace {

/// Requires that every entry of a tree's dictionaries is found by its key, also through an index.
void requireEntriesFound(const Value& value) {
  if (const Array* array = value.array()) {
    for (const Value& element : *array) requireEntriesFound(element);
  } else if (const Dictionary* dictionary = value.dictionary()) {
    for (const Dictionary::Entry& entry : *dictionary) {
      require(&dictionary->valueForKey(entry.keyValue) == &entry.value, "a key finds its entry");
      require(&(*dictionary)[entry.key()] == &entry.value, "a key's text finds its entry");
      requireEntriesFound(entry.value);
    }
  }
}

void requireRejected(std::string_view input, const JSONError& error) {
  require(!error.reason.empty(), "a text is refused for a reason");
  require(error.offset <= input.size(), "an error stands within the text");
  const TextPosition position = TextPosition::of(error.offset, input);
  require(position.line >= 1 && position.line <= error.offset + 1 && position.column >= 1 &&
              position.column <= error.offset + 1,
          "an error's line and column exist");
  require(OrvantaJSONSerializer::dictionaryFromData(input).isNil(), "the serializer refuses too");
}

void requireWrittenAndReadBack(const Value& value) {
  for (const JSONStyle& style : {JSONStyle{}, JSONStyle{.pretty = true, .escapeSlashes = false}}) {
    std::string text;
    require(writeJSON(value, text, style), "what was read can be written");
    const Value back = parseJSON(text);
    require(back == value, "what was written reads back as an equal value");
    require(back.hash() == value.hash(), "equal values hash alike");
    std::string again;
    require(writeJSON(back, again, style) && again == text, "it is written the same way again");
    require(findDuplicateKeys(text).empty(), "no key is written twice");
  }
}

void requireSerialized(std::string_view input, const Value& value) {
  const bool isContainer = value.array() != nullptr || value.dictionary() != nullptr;
  require(isValidJSONObject(value) == isContainer, "containers are JSON objects");
  require(OrvantaJSONSerializer::dictionaryFromData(input) == (isContainer ? value : Value()),
          "the serializer reads containers");
  const auto data = OrvantaJSONSerializer::dataFromDictionary(value);
  require(data.has_value() == isContainer, "the serializer writes containers");
  require(OrvantaJSONSerializer::jsonStringFromDict(value, false) == data.value_or("{}"),
          "both writers write the same");
}

}  // namespace

void json(std::string_view input) {
  for (const DuplicateKey& duplicate : findDuplicateKeys(input)) {
    require(duplicate.firstOffset < duplicate.offset && duplicate.offset < input.size() &&
                input[duplicate.firstOffset] == '"' && input[duplicate.offset] == '"',
            "duplicate keys stand in the text, one after the other");
  }
  JSONError error;
  const Value value = parseJSON(input, &error);
  if (value.isNil()) return requireRejected(input, error);
  requireWrittenAndReadBack(value);
  requireSerialized(input, value);
  requireEntriesFound(value);
  describe(value);
}

}  // namespace orvanta::fuzzing

ORVANTA_FUZZER(json)
