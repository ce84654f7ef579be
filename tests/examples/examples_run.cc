#include <fstream>
#include <iostream>
#include <iterator>
#include <stdexcept>
#include <string>

#include "orvanta/Foundation/JSON.h"
#include "orvanta/Model/Mapping/OrvantaLogger.h"
#include "orvanta/NotificationService/OrvantaNotificationServiceExtension.h"
#include "orvanta/Simulator/NotificationSimulator.h"
#include "orvanta/Simulator/RecordingLog.h"
#include "orvanta/Simulator/Report/JSONReport.h"

// examples_run PAYLOAD [SCENARIO]: simulates one notification in memory, without anything of the
// machine but the two files, and prints the report. The output is the same on every machine.

namespace orvanta {

static Dictionary objectFrom(const char* file) {
  std::ifstream in(file, std::ios::binary);
  if (!in) throw std::runtime_error(std::string(file) + ": cannot be read");
  const Value value = parseJSON(std::string(std::istreambuf_iterator<char>(in), {}));
  if (value.dictionary() == nullptr)
    throw std::runtime_error(std::string(file) + ": not an object");
  return *value.dictionary();
}

static void run(const char* payload, const char* scenario) {
  OrvantaLogger::setLogLevel(2);
  InMemoryDeviceFiles files;
  InMemoryStateStore state;
  RecordingLog log(std::cerr);
  SimulationOptions options;
  if (scenario != nullptr) options.scenario = Scenario::fromDictionary(objectFrom(scenario));
  const NotificationSimulator simulator(
      [] { return std::make_shared<OrvantaNotificationServiceExtension>(); },
      {.files = files, .state = state, .log = &log}, std::move(options));
  const SimulationReport report = simulator.run(objectFrom(payload));
  const auto unchanged = [](std::string_view path) { return std::string(path); };
  std::string text;
  if (!writeJSON(reportAsJSON(report, log.entries(), unchanged), text, {.pretty = true})) {
    throw std::runtime_error("the report has no JSON text");
  }
  std::cout << text << '\n';
}

}  // namespace orvanta

int main(int count, char** arguments) {
  if (count != 2 && count != 3) {
    std::cerr << "usage: examples_run PAYLOAD [SCENARIO]\n";
    return 2;
  }
  try {
    orvanta::run(arguments[1], count == 3 ? arguments[2] : nullptr);
    return 0;
  } catch (const std::exception& error) {
    std::cerr << error.what() << '\n';
    return 1;
  }
}
