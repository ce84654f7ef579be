#include "orvanta/Linux/KeyReaders.h"

#include "orvanta/Foundation/Array.h"
#include "orvanta/Foundation/JSON.h"
#include "orvanta/Foundation/Number.h"

namespace orvanta::reading {

namespace {

/// What a key needs instead of the value that it has.
struct Needed {
  std::string text;
};

/// A value as its JSON text, or its kind when that is long.
std::string shown(const Value& value) {
  constexpr std::size_t kLongest = 60;
  std::string json;
  const bool isWhole = writeJSON(value, json, {.escapeSlashes = false});
  return isWhole && json.size() <= kLongest ? json : std::string(value.kindName());
}

}  // namespace

void refuse(const std::string& needed) { throw Needed{needed}; }

void readAll(const Dictionary& dictionary, const std::string& prefix, const Readers& readers) {
  for (const Dictionary::Entry& entry : dictionary) {
    const auto reader = readers.find(entry.key());
    const std::string key = "\"" + prefix + std::string(entry.key()) + "\"";
    if (reader == readers.end()) throw InputError("unknown key " + key);
    try {
      reader->second(entry.value);
    } catch (const Needed& needed) {
      throw InputError(key + " is " + shown(entry.value) + ", but " + needed.text);
    }
  }
}

std::string text(const Value& value) {
  if (const auto held = value.string()) return std::string(*held);
  refuse("a text is needed");
}

std::optional<std::string> textOrNull(const Value& value) {
  if (value.isNull()) return std::nullopt;
  return text(value);
}

std::vector<std::string> texts(const Value& value) {
  if (value.array() == nullptr) refuse("an array of texts is needed");
  std::vector<std::string> held;
  for (const Value& element : *value.array()) {
    if (!element.isString()) refuse("an array of texts is needed");
    held.push_back(text(element));
  }
  return held;
}

bool flag(const Value& value) {
  if (value.kind() != Kind::boolean) refuse("true or false is needed");
  return value.number()->boolValue();
}

const Dictionary& dictionary(const Value& value) {
  if (const Dictionary* held = value.dictionary()) return *held;
  refuse("a dictionary is needed");
}

double number(const Value& value, double lowest, double highest, const std::string& what) {
  const auto held = value.number();
  if (!held || held->isBoolean() || !(held->doubleValue() >= lowest) ||
      held->doubleValue() > highest) {
    refuse(what + " is needed");
  }
  return held->doubleValue();
}

std::int64_t wholeNumber(const Value& value, std::int64_t lowest, std::int64_t highest) {
  const auto held = value.number();
  if (!held || held->isBoolean() || held->longLongValue() < lowest ||
      held->longLongValue() > highest || !(value == Value(held->longLongValue()))) {
    refuse("a whole number from " + std::to_string(lowest) + " to " + std::to_string(highest) +
           " is needed");
  }
  return held->longLongValue();
}

}  // namespace orvanta::reading
