#include "Tool.h"

#include <CLI/CLI.hpp>
#include <ostream>

#include "Commands.h"
#include "Mapping/OrvantaLogger.h"
#include "Platform/Interface/Platform.h"
#include "Platform/Linux/ClockAndLog.h"

namespace orvanta::tool {

namespace {

constexpr const char* kFooter =
    "Exit codes of all commands:\n"
    "  0  done\n"
    "  1  an object could not be made, or there are findings\n"
    "  2  wrong usage\n"
    "  3  input that cannot be read, or is no JSON object\n"
    "  4  an internal error\n"
    "\n"
    "Without a FILE, or with \"-\", a command reads standard input. Log lines go to standard "
    "error.\n"
    "\n"
    "Examples:\n"
    "  orvanta notify payload.json\n"
    "  orvanta notify payload.json --json | less\n"
    "  echo '{\"aps\":{\"alert\":\"Hi\"}}' | orvanta model OrvantaPushObject\n"
    "  orvanta schema OrvantaPushObject\n"
    "  orvanta device --all --device examples/devices/old-phone.json";

/// The platform of a command that needs the clock and the log only.
class LoggingPlatform final : public Platform {
 public:
  explicit LoggingPlatform(std::ostream& logStream) : log_(logStream) {}
  SystemLog* systemLog() override { return &log_; }
  Clock* clock() override { return &clock_; }

 private:
  RecordingLog log_;
  SystemClock clock_;
};

ExitCode execute(int argc, const char* const* argv, const Streams& streams) {
  CLI::App app(
      "Shows on a desk what a push payload does on a phone, and what the library's models make of "
      "a dictionary.",
      "orvanta");
  app.footer(kFooter);
  app.require_subcommand(0, 1);
  app.fallthrough();
  app.set_version_flag("--version", "orvanta 0.1.0");
  std::int64_t logLevel = OrvantaLogger::logLevel();
  app.add_option("--log-level", logLevel,
                 "0 and below: no log lines; 1: errors; 2 and more: progress as well")
      ->capture_default_str();

  NotifyOptions notifyOptions;
  CLI::App* notifyCommand = app.add_subcommand(
      "notify",
      "Run the notification service on a payload (\"aps\" at the top level) and show what happens: "
      "whether the system starts the extension at all, each step, each delivery, and the "
      "notification as the user sees it.");
  notifyCommand->add_option("PAYLOAD", notifyOptions.payload, "JSON file")->capture_default_str();
  notifyCommand->add_flag("--json", notifyOptions.json, "Print a ledger for programs instead");
  notifyCommand
      ->add_option("--os-version", notifyOptions.osVersion, "iOS version to simulate (17.0)")
      ->option_text("V");
  notifyCommand
      ->add_option("--resources", notifyOptions.resources,
                   "The bundle's resources: pictures and Localizable.strings")
      ->option_text("DIR");
  notifyCommand
      ->add_option(
          "--state", notifyOptions.state,
          "Caches, registered categories and donations (a fresh folder, removed at the end)")
      ->option_text("DIR");
  notifyCommand
      ->add_option("--map-url", notifyOptions.mapUrls,
                   "Fetch URLs that begin with PREFIX from TARGET, a folder or another URL; "
                   "repeatable, the longest prefix counts")
      ->option_text("PREFIX=TARGET")
      ->allow_extra_args(false);
  notifyCommand
      ->add_option(
          "--scenario", notifyOptions.scenario,
          "What the device does: replaced texts, answers, delays, faults, a second request")
      ->option_text("FILE");
  notifyCommand
      ->add_option("--time-budget", notifyOptions.timeBudget,
                   "Seconds from the request to the expiry (30)")
      ->option_text("S")
      ->check(CLI::Range(0.0, 1e9));
  notifyCommand->add_flag("--real-time", notifyOptions.realTime,
                          "Wait as long as the simulated device would");
  notifyCommand
      ->add_option("--max-download", notifyOptions.maxDownload,
                   "End a download beyond this size (256M)")
      ->option_text("BYTES");

  ModelOptions modelOptions;
  CLI::App* modelCommand = app.add_subcommand(
      "model",
      "Make a model of a class from a JSON object, and print it as the dictionary that goes over "
      "the wire.");
  modelCommand->add_option("CLASS", modelOptions.className, "See `orvanta schema`")->required();
  auto* file =
      modelCommand->add_option("FILE", modelOptions.file, "JSON file")->capture_default_str();
  modelCommand
      ->add_flag("--init", modelOptions.init, "Read nothing: a new object with its defaults")
      ->excludes(file);
  modelCommand
      ->add_option("--update", modelOptions.updates, "Then update it from this file; repeatable")
      ->option_text("FILE")
      ->allow_extra_args(false);
  modelCommand->add_flag("--class-info", modelOptions.classInfo,
                         "Name the class of every model under \"klazz\"");
  modelCommand->add_flag("--pretty", modelOptions.pretty, "Indent the output");

  SchemaOptions schemaOptions;
  CLI::App* schemaCommand = app.add_subcommand(
      "schema", "Print the wire keys, properties and types of one model class, or of all.");
  schemaCommand->add_option("CLASS", schemaOptions.className, "Only this class");
  schemaCommand->add_flag("--json", schemaOptions.json, "Print JSON");

  DeviceOptions deviceOptions;
  CLI::App* deviceCommand = app.add_subcommand(
      "device",
      "Collect what the library reads about the device and the application, and print it as it "
      "goes over the wire.");
  deviceCommand->add_flag("--all", deviceOptions.all,
                          "The full description instead of the short one that requests carry");
  deviceCommand
      ->add_option("--device", deviceOptions.device,
                   "JSON profile of a device (see docs/devices.md; what it omits is read from this "
                   "machine), or \"host\" for this machine alone (a current phone)")
      ->option_text("FILE|host");

  for (CLI::App* command : app.get_subcommands({})) {
    command->fallthrough();
    command->footer("--log-level and the exit codes: see `orvanta --help`.");
  }

  try {
    app.parse(argc, argv);
  } catch (const CLI::ParseError& error) {
    const int code = app.exit(error, streams.out, streams.err);
    return code == 0 ? ExitCode::done : ExitCode::usage;
  }
  if (app.get_subcommands().empty()) {
    throw Failure(ExitCode::usage,
                  "a command is needed: notify, model, schema or device; see --help");
  }
  OrvantaLogger::setLogLevel(logLevel);
  if (*notifyCommand) return notify(notifyOptions, streams);
  if (*deviceCommand) return device(deviceOptions, streams);
  LoggingPlatform platform(streams.err);
  const PlatformOverride override(platform);
  if (*modelCommand) return model(modelOptions, streams);
  return schema(schemaOptions, streams);
}

}  // namespace

ExitCode run(int argc, const char* const* argv, const Streams& streams) {
  try {
    const ExitCode code = execute(argc, argv, streams);
    if (streams.out.flush()) return code;
    throw Failure(ExitCode::internal, "the output cannot be written");
  } catch (const Failure& failure) {
    streams.err << "orvanta: " << failure.what() << '\n';
    return failure.code();
  } catch (const std::exception& error) {
    streams.err << "orvanta: internal error: " << error.what() << '\n';
    return ExitCode::internal;
  }
}

}  // namespace orvanta::tool
