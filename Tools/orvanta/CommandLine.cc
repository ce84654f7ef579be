#include "orvanta/Tool/CommandLine.h"

#include <CLI/CLI.hpp>
#include <functional>
#include <memory>
#include <ostream>

#include "orvanta/Inspection/Models.h"
#include "orvanta/Model/Mapping/OrvantaLogger.h"
#include "orvanta/Platform/Platform.h"
#include "orvanta/Simulator/RecordingLog.h"
#include "orvanta/Simulator/SystemClock.h"
#include "orvanta/Simulator/SystemRandom.h"
#include "orvanta/Tool/Commands.h"
#include "orvanta/Tool/Text.h"

namespace orvanta::tool {

namespace {

constexpr const char* kFooter =
    "Exit codes of all commands:\n"
    "  0  done\n"
    "  1  an object could not be made, or lines were left out\n"
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
    "  orvanta request OrvantaFetchInboxRequest request.json\n"
    "  orvanta batch examples/events/stored.jsonl\n"
    "  orvanta replay recorded.jsonl --jobs 2\n"
    "  orvanta device --all --device examples/devices/old-phone.json\n"
    "  orvanta identifier -n 3";

constexpr std::uint64_t kMaxDownloadLimit = 1'000'000'000'000;

/// The platform of commands that do not simulate a device: log, clock and random numbers.
class LoggingPlatform final : public Platform {
 public:
  explicit LoggingPlatform(std::ostream& logStream) : log_(logStream) {}
  SystemLog* systemLog() override { return &log_; }
  Clock* clock() override { return &clock_; }
  RandomSource* randomSource() override { return &random_; }

 private:
  RecordingLog log_;
  SystemClock clock_;
  SystemRandom random_;
};

/// Removes leading zeros, which would make the number octal or hexadecimal. Returns what is wrong
/// with a size that has no digits then.
std::string decimalSize(std::string& size) {
  size.erase(0, size.find_first_not_of('0'));
  const bool hasDigit = !size.empty() && size.front() >= '1' && size.front() <= '9';
  return hasDigit ? "" : "a number of bytes is needed, such as 5M";
}

CLI::App* addNotify(CLI::App& app, NotifyOptions& options) {
  CLI::App* command = app.add_subcommand(
      "notify",
      "Run the notification service on a payload (\"aps\" at the top level) and show what happens: "
      "whether the system starts the extension at all, each step, each delivery, and the "
      "notification as the user sees it.");
  command->add_option("PAYLOAD", options.payload, "JSON file")->capture_default_str();
  command->add_flag("--json", options.json, "Print a report for programs instead");
  command->add_option("--os-version", options.osVersion, "iOS version to simulate (17.0)")
      ->option_text("V");
  command
      ->add_option("--resources", options.resources,
                   "The bundle's resources: pictures and Localizable.strings")
      ->option_text("DIR");
  command
      ->add_option(
          "--state", options.state,
          "Caches, registered categories and donations (a fresh folder, removed at the end)")
      ->option_text("DIR");
  command
      ->add_option("--map-url", options.mapUrls,
                   "Fetch URLs that begin with PREFIX from TARGET, a folder or another URL; "
                   "repeatable, the longest prefix counts")
      ->option_text("PREFIX=TARGET")
      ->allow_extra_args(false);
  command
      ->add_option(
          "--scenario", options.scenario,
          "What the device does: replaced texts, answers, delays, faults, a second request")
      ->option_text("FILE");
  command->add_option("--time-budget", options.timeBudget, "Seconds from the request to the expiry")
      ->type_name("S")
      ->check(CLI::Range(0.0, 1e9).description(""))
      ->capture_default_str();
  command->add_flag("--real-time", options.realTime, "Wait as long as the simulated device would");
  command
      ->add_option(
          "--max-download", options.maxDownload,
          "End a download beyond this size; k, M, G are powers of 1000, Ki, Mi, Gi of 1024")
      ->type_name("BYTES")
      ->transform(CLI::AsSizeValue(/*kb_is_1000=*/true).description(""))
      ->transform(CLI::Validator(decimalSize, ""))  // runs before the one above
      ->check(CLI::Range(std::uint64_t{1}, kMaxDownloadLimit).description(""))
      ->default_val("256M");
  return command;
}

CLI::App* addModel(CLI::App& app, ModelOptions& options) {
  CLI::App* command = app.add_subcommand(
      "model",
      "Make a model of a class from a JSON object, and print it as the dictionary that goes over "
      "the wire.");
  command->add_option("CLASS", options.className, "See `orvanta schema`")->required();
  auto* file = command->add_option("FILE", options.file, "JSON file")->capture_default_str();
  command->add_flag("--init", options.init, "Read nothing: a new object with its defaults")
      ->excludes(file);
  command->add_option("--update", options.updates, "Then update it from this file; repeatable")
      ->option_text("FILE")
      ->allow_extra_args(false);
  command->add_flag("--class-info", options.classInfo,
                    "Name the class of every model under \"klazz\"");
  command->add_flag("--pretty", options.pretty, "Indent the output");
  return command;
}

CLI::App* addSchema(CLI::App& app, SchemaOptions& options) {
  CLI::App* command = app.add_subcommand(
      "schema", "Print the wire keys, properties and types of one model class, or of all.");
  auto* name = command->add_option("CLASS", options.className, "Only this class");
  auto* json = command->add_flag("--json", options.json, "Print JSON");
  command
      ->add_flag("--markdown", options.markdown,
                 "Print the document of the wire format, a section per class")
      ->excludes(json)
      ->excludes(name);
  return command;
}

CLI::App* addRequest(CLI::App& app, RequestOptions& options) {
  CLI::App* command = app.add_subcommand(
      "request", "Restore a request from its dictionary, and print the call that it makes.");
  command->add_option("CLASS", options.className, "A request class, see `orvanta schema`")
      ->required();
  command->add_option("FILE", options.file, "JSON file")->capture_default_str();
  command->add_flag("--text", options.text, "Print text for people instead of JSON");
  return command;
}

CLI::App* addBatch(CLI::App& app, BatchOptions& options) {
  CLI::App* command = app.add_subcommand(
      "batch",
      "Fold stored event requests into batches of up to 100 events, as they would be sent, and "
      "print one JSON line per batch. A line of input is one OrvantaEventRequest with its class "
      "info; its number over all files is its storage id. A request that holds more events goes "
      "alone; one without events is left out.");
  command->add_option("FILE", options.files, "JSON lines (standard input)");
  return command;
}

CLI::App* addReplay(CLI::App& app, ReplayOptions& options) {
  CLI::App* command = app.add_subcommand(
      "replay",
      "Run recorded payloads, one JSON object a line, through the notification service on a device "
      "where everything goes well and nothing is fetched, and count what came of them.");
  command->add_option("FILE", options.file, "JSON lines")->capture_default_str();
  command->add_flag("--json", options.json, "Print JSON");
  command->add_option("--jobs", options.jobs, "Run on that many threads")
      ->type_name("N")
      ->check(CLI::Range(1, 256).description(""))
      ->capture_default_str();
  return command;
}

CLI::App* addIdentifier(CLI::App& app, IdentifierOptions& options) {
  CLI::App* command =
      app.add_subcommand("identifier", "Make short identifiers, or tell what stands in one.");
  auto* count = command->add_option("-n", options.count, "How many, up to 1000000")
                    ->type_name("N")
                    ->check(CLI::Range(1, 1000000).description(""))
                    ->capture_default_str();
  command
      ->add_option("--decode", options.decode,
                   "Show the number of this identifier, and the time and the random part in it")
      ->option_text("TEXT")
      ->excludes(count);
  return command;
}

CLI::App* addDevice(CLI::App& app, DeviceOptions& options) {
  CLI::App* command = app.add_subcommand(
      "device",
      "Collect what the library reads about the device and the application, and print it as it "
      "goes over the wire.");
  command->add_flag("--all", options.all,
                    "The full description instead of the short one that requests carry");
  command
      ->add_option("--device", options.device,
                   "JSON profile of a device (see docs/devices.md; what it omits is read from this "
                   "machine), or \"host\" for this machine alone (a current phone)")
      ->option_text("FILE|host");
  return command;
}

/// A command: its parser, and a function that runs it with the parsed options.
struct Command {
  CLI::App* parser;
  std::function<ExitCode(const Streams&)> run;
};

template <class Options>
Command command(CLI::App& app, CLI::App* (*add)(CLI::App&, Options&),
                ExitCode (*run)(const Options&, const Streams&)) {
  const auto options = std::make_shared<Options>();
  return {add(app, *options),
          [options, run](const Streams& streams) { return run(*options, streams); }};
}

ExitCode execute(int argc, const char* const* argv, const Streams& streams) {
  CLI::App app(
      "Shows on a desk what a push payload does on a phone, and what the library's models make of "
      "a dictionary.",
      "orvanta");
  app.footer(kFooter);
  app.require_subcommand(0, 1);
  app.fallthrough();
  app.set_version_flag("--version", "orvanta " ORVANTA_VERSION);
  std::int64_t logLevel = OrvantaLogger::logLevel();
  app.add_option("--log-level", logLevel,
                 "0 and below: no log lines; 1: errors; 2 and more: progress as well")
      ->capture_default_str();

  const Command commands[] = {
      command(app, addNotify, notify), command(app, addModel, model),
      command(app, addSchema, schema), command(app, addRequest, request),
      command(app, addBatch, batch),   command(app, addIdentifier, identifier),
      command(app, addReplay, replay), command(app, addDevice, device),
  };
  for (const Command& each : commands) {
    each.parser->fallthrough();
    each.parser->footer("--log-level and the exit codes: see `orvanta --help`.");
  }

  try {
    app.parse(argc, argv);
  } catch (const CLI::ParseError& error) {
    const int code = app.exit(error, streams.out, streams.err);
    return code == 0 ? ExitCode::done : ExitCode::usage;
  }
  OrvantaLogger::setLogLevel(logLevel);
  LoggingPlatform platform(streams.err);
  const PlatformOverride override(platform);
  std::string names;
  for (const Command& each : commands) {
    if (each.parser->parsed()) return each.run(streams);
    names.append(names.empty() ? "" : ", ").append(each.parser->get_name());
  }
  throw CommandError(ExitCode::usage, "a command is needed, one of " + names + "; see --help");
}

}  // namespace

ExitCode runCommandLine(int argc, const char* const* argv, const Streams& streams) {
  try {
    const ExitCode code = execute(argc, argv, streams);
    if (streams.out.flush()) return code;
    throw CommandError(ExitCode::internal, "the output cannot be written");
  } catch (const CommandError& error) {
    streams.err << "orvanta: " << error.what() << '\n';
    return error.code();
  } catch (const inspection::Error& error) {
    streams.err << "orvanta: " << escapeForTerminal(error.what()) << '\n';
    const bool isUsage = error.kind() == inspection::Error::Kind::usage;
    return isUsage ? ExitCode::usage : ExitCode::rejected;
  } catch (const std::exception& error) {
    streams.err << "orvanta: internal error: " << error.what() << '\n';
    return ExitCode::internal;
  }
}

}  // namespace orvanta::tool
