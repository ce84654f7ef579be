#include "orvanta.h"

#include <cstdlib>
#include <cstring>
#include <new>
#include <sstream>
#include <string>

#include "orvanta/Foundation/Array.h"
#include "orvanta/Foundation/JSON.h"
#include "orvanta/Inspection/Models.h"
#include "orvanta/Inspection/Schema.h"
#include "orvanta/NotificationService/OrvantaNotificationServiceExtension.h"
#include "orvanta/Simulator/ConfigReader.h"
#include "orvanta/Simulator/NotificationSimulator.h"
#include "orvanta/Simulator/RecordingLog.h"
#include "orvanta/Simulator/Report/JSONReport.h"
#include "orvanta/Simulator/StringsFile.h"
#include "orvanta/Simulator/SystemClock.h"

using namespace orvanta;

namespace {

/// Input that is not a JSON object.
class UnreadableInput : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

Dictionary parseObject(const char* json, const std::string& name) {
  if (json == nullptr) throw UnreadableInput(name + ": a null pointer");
  JSONError error;
  const std::string_view input(json);
  const Value value = parseJSON(input, &error);
  if (value.isNil()) {
    const TextPosition at = TextPosition::of(error.offset, input);
    throw UnreadableInput(name + ":" + std::to_string(at.line) + ":" + std::to_string(at.column) +
                          ": " + std::string(error.reason));
  }
  if (value.dictionary() == nullptr) {
    throw UnreadableInput(name + ": expected a JSON object, found " +
                          std::string(value.kindName()));
  }
  return *value.dictionary();
}

const Class& classNamed(const char* name) {
  return inspection::classNamed(name != nullptr ? name : "");
}

/// Returns a copy in memory of malloc, so that no allocator has to be shared; null without memory.
char* copied(const std::string& string) {
  auto* const copy = static_cast<char*>(std::malloc(string.size() + 1));
  if (copy != nullptr) std::memcpy(copy, string.c_str(), string.size() + 1);
  return copy;
}

char* written(const Dictionary& result) {
  std::string json;
  // A payload at the depth limit is nested some levels deeper in a report.
  const JSONStyle style{.pretty = false, .escapeSlashes = false, .depthLimit = kJSONDepthLimit + 8};
  if (!writeJSON(result, json, style)) {
    throw inspection::Error(inspection::Error::Kind::rejected,
                            "the result holds a number that JSON cannot represent");
  }
  return copied(json);
}

char* failed(const char* kind, const char* message) {
  std::string json;
  writeJSON(Dictionary{{"error", Dictionary{{"kind", kind}, {"message", message}}}}, json);
  return copied(json);
}

/// Runs a function of the interface and turns what it throws into an error object.
template <class Function>
char* guarded(Function&& function) noexcept {
  try {
    try {
      return written(function());
    } catch (const inspection::Error& error) {
      const bool isUsage = error.kind() == inspection::Error::Kind::usage;
      return failed(isUsage ? "usage" : "rejected", error.what());
    } catch (const UnreadableInput& error) {
      return failed("unreadable", error.what());
    } catch (const ConfigError& error) {
      return failed("usage", error.what());
    } catch (const std::bad_alloc&) {
      return nullptr;
    } catch (const std::exception& error) {
      return failed("internal", error.what());
    }
  } catch (...) {
    return nullptr;
  }
}

struct NotifyOptions {
  SimulationOptions simulation;
  StringsTable strings;
};

NotifyOptions notifyOptions(const char* json) {
  NotifyOptions options;
  if (json == nullptr) return options;
  config::read(parseObject(json, "options"), "",
               {{"osVersion",
                 [&](const Value& v) {
                   const auto version = parseVersion(config::string(v));
                   if (!version) config::fail("a version such as \"17.0\"");
                   options.simulation.os = *version;
                 }},
                {"timeBudget",
                 [&](const Value& v) {
                   options.simulation.timeBudget =
                       config::number(v, 0.0, 1e9, "a number of seconds from 0 to 1e9");
                 }},
                {"scenario",
                 [&](const Value& v) {
                   options.simulation.scenario = Scenario::fromDictionary(config::dictionary(v));
                 }},
                {"strings", [&](const Value& v) {
                   for (const Dictionary::Entry& entry : config::dictionary(v)) {
                     options.strings.emplace(entry.key(), config::string(entry.value));
                   }
                 }}});
  return options;
}

}  // namespace

const char* orvanta_version(void) { return ORVANTA_VERSION; }

char* orvanta_notify(const char* payload, const char* options) {
  return guarded([&] {
    const Dictionary dictionary = parseObject(payload, "payload");
    NotifyOptions configuration = notifyOptions(options);
    InMemoryDeviceFiles files;
    InMemoryStateStore state;
    SimulatedBundle bundle(std::move(configuration.strings));
    SystemClock clock;
    std::ostringstream unused;
    RecordingLog log(unused);
    const NotificationSimulator simulator(
        [] { return std::make_shared<OrvantaNotificationServiceExtension>(); },
        {.files = files, .state = state, .bundle = &bundle, .clock = &clock, .log = &log},
        std::move(configuration.simulation));
    const SimulationReport report = simulator.run(dictionary);
    return reportAsJSON(report, log.entries(),
                        [](std::string_view string) { return std::string(string); });
  });
}

char* orvanta_model(const char* class_name, const char* json, const char* options) {
  return guarded([&] {
    bool classInfo = false;
    if (options != nullptr) {
      config::read(parseObject(options, "options"), "",
                   {{"classInfo", [&](const Value& v) { classInfo = config::flag(v); }}});
    }
    const Class& cls = classNamed(class_name);
    if (json == nullptr) return inspection::modelDictionary(cls, nullptr, classInfo);
    const Dictionary dictionary = parseObject(json, "json");
    return inspection::modelDictionary(cls, &dictionary, classInfo);
  });
}

char* orvanta_schema(const char* class_name) {
  return guarded([&] {
    return class_name != nullptr ? inspection::schemaOfClass(classNamed(class_name))
                                 : inspection::schemaOfAllClasses();
  });
}

char* orvanta_request(const char* class_name, const char* json) {
  return guarded(
      [&] { return inspection::requestCall(classNamed(class_name), parseObject(json, "json")); });
}

void orvanta_free(char* result) { std::free(result); }
