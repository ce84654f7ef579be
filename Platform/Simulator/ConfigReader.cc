#include "orvanta/Simulator/ConfigReader.h"

#include "orvanta/Foundation/Array.h"
#include "orvanta/Foundation/JSON.h"
#include "orvanta/Foundation/Number.h"

namespace orvanta::config {

namespace {

/// Thrown by `fail`, caught where the key is known.
struct ExpectedValue {
  std::string expectation;
};

/// Returns a value's JSON, or its kind when that is long.
std::string shortJSON(const Value& value) {
  constexpr std::size_t kMaxBytes = 60;
  std::string json;
  const bool isWritten = writeJSON(value, json, {.escapeSlashes = false});
  return isWritten && json.size() <= kMaxBytes ? json : std::string(value.kindName());
}

}  // namespace

void fail(const std::string& expectation) { throw ExpectedValue{expectation}; }

void read(const Dictionary& dictionary, const std::string& prefix, const Readers& readers) {
  for (const Dictionary::Entry& entry : dictionary) {
    const auto reader = readers.find(entry.key());
    const std::string key = "\"" + prefix + std::string(entry.key()) + "\"";
    if (reader == readers.end()) throw ConfigError("unknown key " + key);
    try {
      reader->second(entry.value);
    } catch (const ExpectedValue& expected) {
      throw ConfigError(key + ": expected " + expected.expectation + ", found " +
                        shortJSON(entry.value));
    }
  }
}

std::string string(const Value& value) {
  if (const auto string = value.string()) return std::string(*string);
  fail("a string");
}

std::optional<std::string> stringOrNull(const Value& value) {
  if (value.isNull()) return std::nullopt;
  return string(value);
}

std::vector<std::string> strings(const Value& value) {
  constexpr const char* kExpectation = "an array of strings";
  if (value.array() == nullptr) fail(kExpectation);
  std::vector<std::string> elements;
  for (const Value& element : *value.array()) {
    if (!element.isString()) fail(kExpectation);
    elements.push_back(string(element));
  }
  return elements;
}

bool flag(const Value& value) {
  if (value.kind() != Kind::boolean) fail("true or false");
  return value.number()->boolValue();
}

const Dictionary& dictionary(const Value& value) {
  if (const Dictionary* dictionary = value.dictionary()) return *dictionary;
  fail("an object");
}

double number(const Value& value, double lowest, double highest, const std::string& expectation) {
  const auto number = value.number();
  if (!number || number->isBoolean() || !(number->doubleValue() >= lowest) ||
      number->doubleValue() > highest) {
    fail(expectation);
  }
  return number->doubleValue();
}

std::int64_t wholeNumber(const Value& value, std::int64_t lowest, std::int64_t highest) {
  const auto number = value.number();
  if (!number || number->isBoolean() || number->longLongValue() < lowest ||
      number->longLongValue() > highest || value != Value(number->longLongValue())) {
    fail("a whole number from " + std::to_string(lowest) + " to " + std::to_string(highest));
  }
  return number->longLongValue();
}

}  // namespace orvanta::config
