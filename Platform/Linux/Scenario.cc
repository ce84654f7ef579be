#include "Platform/Linux/Scenario.h"

#include <charconv>
#include <cmath>
#include <functional>
#include <map>

#include "Foundation/Array.h"
#include "Foundation/JSON.h"
#include "Foundation/Number.h"

namespace orvanta {

namespace {

/// Readers of one dictionary's keys; every key that stands in it must have one.
using Readers = std::map<std::string_view, std::function<void(const Value&)>>;

/// What a key needs instead of the value that it has.
struct Needed {
  std::string text;
};
[[noreturn]] void refuse(const std::string& needed) { throw Needed{needed}; }

/// A value as its JSON text, or its kind when that is long.
std::string shown(const Value& value) {
  constexpr std::size_t kLongest = 60;
  std::string text;
  const bool isWhole = writeJSON(value, text, {.escapeSlashes = false});
  return isWhole && text.size() <= kLongest ? text : std::string(value.kindName());
}

void readAll(const Dictionary& dictionary, const std::string& prefix, const Readers& readers) {
  for (const Dictionary::Entry& entry : dictionary) {
    const auto reader = readers.find(entry.key());
    const std::string key = "\"" + prefix + std::string(entry.key()) + "\"";
    if (reader == readers.end()) throw ScenarioError("unknown key " + key);
    try {
      reader->second(entry.value);
    } catch (const Needed& needed) {
      throw ScenarioError(key + " is " + shown(entry.value) + ", but " + needed.text);
    }
  }
}

std::string text(const Value& value) {
  if (const auto held = value.string()) return std::string(*held);
  refuse("a text is needed");
}

Scenario::Text textOrNull(const Value& value) {
  return value.isNull() ? Scenario::Text() : Scenario::Text(text(value));
}

double seconds(const Value& value) {
  constexpr double kMost = 1e9;
  const auto number = value.number();
  if (!number || number->isBoolean() || !(number->doubleValue() >= 0.0) ||
      number->doubleValue() > kMost) {
    refuse("a number of seconds from 0 to 1e9 is needed");
  }
  return number->doubleValue();
}

template <class T>
T wholeNumber(const Value& value, std::int64_t lowest, std::int64_t highest) {
  const auto number = value.number();
  if (!number || number->isBoolean() || number->longLongValue() < lowest ||
      number->longLongValue() > highest || !(value == Value(number->longLongValue()))) {
    refuse("a whole number from " + std::to_string(lowest) + " to " + std::to_string(highest) +
           " is needed");
  }
  return static_cast<T>(number->longLongValue());
}

bool flag(const Value& value) {
  if (value.kind() != Kind::boolean) refuse("true or false is needed");
  return value.number()->boolValue();
}

const Dictionary& dictionary(const Value& value) {
  if (const Dictionary* held = value.dictionary()) return *held;
  refuse("a dictionary is needed");
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

/// True when the text is the one word that a key may have.
bool word(const Value& value, std::string_view only) {
  if (value.string() != only) refuse("only \"" + std::string(only) + "\" is possible");
  return true;
}

/// A file name, which stays in its folder.
std::string fileName(const Value& value) {
  std::string name = text(value);
  if (name.empty() || name == "." || name == ".." || name.size() > 200 ||
      name.find_first_of(std::string_view("/\0", 2)) != std::string::npos) {
    refuse("a plain file name is needed");
  }
  return name;
}

Scenario::Media readMedia(const Value& value) {
  Scenario::Media media;
  readAll(dictionary(value), "media.",
          {{"result",
            [&](const Value& v) {
              if (v.string() != "ok" && v.string() != "error") {
                refuse(R"("ok" or "error" is needed)");
              }
              media.fails = v.string() == "error";
            }},
           {"code", [&](const Value& v) { media.errorCode = wholeNumber<int>(v, -100000, -1); }},
           {"status", [&](const Value& v) { media.status = wholeNumber<int>(v, 100, 599); }},
           {"mime", [&](const Value& v) { media.mime = textOrNull(v); }},
           {"tempName", [&](const Value& v) { media.tempName = fileName(v); }},
           {"bytes",
            [&](const Value& v) { media.bytes = wholeNumber<std::uint64_t>(v, 0, 1'000'000'000); }},
           {"destinationExists", [&](const Value& v) { media.destinationExists = flag(v); }},
           {"delay", [&](const Value& v) { media.delay = seconds(v); }}});
  return media;
}

}  // namespace

std::optional<OperatingSystemVersion> parseVersion(std::string_view text) {
  int parts[3] = {0, 0, 0};
  const char* at = text.data();
  const char* end = at + text.size();
  for (int& part : parts) {
    const auto result = std::from_chars(at, end, part);
    if (result.ec != std::errc() || part < 0) return std::nullopt;
    at = result.ptr;
    if (at == end) return OperatingSystemVersion{parts[0], parts[1], parts[2]};
    if (*at++ != '.') return std::nullopt;
  }
  return std::nullopt;
}

Scenario Scenario::fromDictionary(const Dictionary& given) {
  Scenario made;
  readAll(given, "",
          {{"os",
            [&](const Value& v) {
              made.os = parseVersion(text(v));
              if (!made.os) refuse("a version such as \"15.0\" is needed");
            }},
           {"title", [&](const Value& v) { made.title = textOrNull(v); }},
           {"subtitle", [&](const Value& v) { made.subtitle = textOrNull(v); }},
           {"body", [&](const Value& v) { made.body = textOrNull(v); }},
           {"images", [&](const Value& v) { made.images = texts(v); }},
           {"categories", [&](const Value& v) { made.categories = texts(v); }},
           {"attachments",
            [&](const Value& v) { made.attachments = wholeNumber<std::size_t>(v, 0, 100); }},
           {"media", [&](const Value& v) { made.media = readMedia(v); }},
           {"center", [&](const Value& v) { made.centerGone = word(v, "gone"); }},
           {"donation", [&](const Value& v) { made.donationFails = word(v, "fail"); }},
           {"update", [&](const Value& v) { made.updateFails = word(v, "fail"); }},
           {"delays",
            [&](const Value& v) {
              readAll(dictionary(v), "delays.",
                      {{"categories", [&](const Value& d) { made.categoriesDelay = seconds(d); }},
                       {"donation", [&](const Value& d) { made.donationDelay = seconds(d); }}});
            }},
           {"expireAt", [&](const Value& v) { made.expireAt = seconds(v); }},
           {"second", [&](const Value& v) {
              Second again;
              readAll(dictionary(v), "second.",
                      {{"at", [&](const Value& a) { again.at = seconds(a); }},
                       {"payload", [&](const Value& p) { again.payload = dictionary(p); }}});
              made.second = again;
            }}});
  return made;
}

}  // namespace orvanta
