#include <cmath>
#include <filesystem>
#include <ostream>
#include <system_error>

#include "orvanta/Linux/LinuxHost.h"
#include "orvanta/Linux/StateFolder.h"
#include "orvanta/NotificationService/OrvantaNotificationServiceExtension.h"
#include "orvanta/Simulator/ConfigReader.h"
#include "orvanta/Simulator/NotificationSimulator.h"
#include "orvanta/Simulator/RecordingLog.h"
#include "orvanta/Simulator/Report/JSONReport.h"
#include "orvanta/Simulator/Report/TextReport.h"
#include "orvanta/Tool/Commands.h"
#include "orvanta/Tool/Input.h"
#include "orvanta/Tool/ProgressBar.h"
#include "orvanta/Tool/Text.h"

namespace orvanta::tool {

namespace {

namespace fs = std::filesystem;

UrlMapping mappingFrom(const std::string& argument) {
  const auto equals = argument.find('=');
  if (equals == std::string::npos || equals == 0 || equals + 1 == argument.size()) {
    throw CommandError(ExitCode::usage, "--map-url \"" + escapeForTerminal(argument) +
                                            "\": PREFIX=TARGET is needed");
  }
  UrlMapping mapping{argument.substr(0, equals), argument.substr(equals + 1)};
  if (mapping.isFolder() && !fs::is_directory(mapping.target)) {
    throw CommandError(ExitCode::unreadable,
                       escapeForTerminal(mapping.target) + ": no such folder (--map-url)");
  }
  return mapping;
}

Scenario scenarioFrom(const std::string& file, const Streams& streams) {
  if (file.empty()) return {};
  const Input input = readInput(file, streams);
  try {
    return Scenario::fromDictionary(input.object);
  } catch (const ConfigError& error) {
    throw CommandError(ExitCode::unreadable, input.name + ": " + escapeForTerminal(error.what()));
  }
}

}  // namespace

static ExitCode runNotify(const NotifyOptions& options, const Streams& streams) {
  if (!std::isfinite(options.timeBudget)) {
    throw CommandError(ExitCode::usage, "--time-budget: a finite number of seconds is needed");
  }
  if (options.payload == "-" && options.scenario == "-") {
    throw CommandError(ExitCode::usage, "standard input can be read only once");
  }
  SimulationOptions simulation{.scenario = scenarioFrom(options.scenario, streams),
                               .timeBudget = options.timeBudget};
  if (!options.osVersion.empty()) {
    const auto version = parseVersion(options.osVersion);
    if (!version) {
      throw CommandError(ExitCode::usage, "--os-version \"" + escapeForTerminal(options.osVersion) +
                                              "\": a version such as 17.0 is needed");
    }
    simulation.scenario.os = *version;
  }
  if (!options.resources.empty() && !fs::is_directory(options.resources)) {
    throw CommandError(ExitCode::unreadable,
                       escapeForTerminal(options.resources) + ": no such folder (--resources)");
  }
  LinuxHostOptions machine{.resources = options.resources, .realTime = options.realTime};
  for (const std::string& mapping : options.mapUrls) {
    machine.urlMappings.push_back(mappingFrom(mapping));
  }
  machine.limits.bytes = options.maxDownload;

  const Input input = readInput(options.payload, streams);
  const StateFolder state(options.state);
  const PathRewriter rewritePaths = [&](std::string_view string) {
    return state.rewritePaths(string);
  };
  machine.stateFolder = state.path();
  RecordingLog log(streams.err);
  log.setFilter(rewritePaths);
  machine.log = &log;
  ProgressBar progress(streams.err);
  if (progress.isVisible()) {
    machine.progress = [&](std::uint64_t received, std::uint64_t expected) {
      const bool isKnown = expected != 0 && expected >= received;
      const std::string total = isKnown ? " of " + std::to_string(expected / 1000) + " kB" : "";
      progress.update(received, isKnown ? expected : 0,
                      std::to_string(received / 1000) + " kB" + total);
    };
  }

  LinuxHost host(std::move(machine));
  const NotificationSimulator simulator(
      [] { return std::make_shared<OrvantaNotificationServiceExtension>(); }, host.services(),
      std::move(simulation));
  const SimulationReport report = simulator.run(input.object);
  progress.erase();
  if (options.json) {
    printJSON(reportAsJSON(report, log.entries(), rewritePaths), streams.out, /*pretty=*/true);
  } else {
    writeTextReport({input.name, input.text.size(), input.object}, report, rewritePaths,
                    streams.out);
  }
  return ExitCode::done;
}

ExitCode notify(const NotifyOptions& options, const Streams& streams) {
  try {
    return runNotify(options, streams);
  } catch (const fs::filesystem_error& error) {
    throw CommandError(
        ExitCode::unreadable,
        (error.path1().empty() ? "temporary folder" : escapeForTerminal(error.path1().string())) +
            ": " + error.code().message());
  } catch (const CommandError&) {
    throw;
  } catch (const std::runtime_error& error) {
    throw CommandError(ExitCode::unreadable, escapeForTerminal(error.what()));
  }
}

}  // namespace orvanta::tool
