#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <cctype>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <system_error>

#include "orvanta/Foundation/Url.h"
#include "orvanta/Linux/ClockAndLog.h"
#include "orvanta/Linux/KeyReaders.h"
#include "orvanta/Linux/NotificationHost.h"
#include "orvanta/NotificationService/OrvantaNotificationServiceExtension.h"
#include "orvanta/Tool/Commands.h"
#include "orvanta/Tool/Input.h"
#include "orvanta/Tool/Ledger.h"
#include "orvanta/Tool/Sheet.h"
#include "orvanta/Tool/Text.h"

namespace orvanta::tool {

namespace {

namespace fs = std::filesystem;

/// A state folder: the one named, which stays, or a fresh one, which goes with this object.
class StateFolder {
 public:
  explicit StateFolder(const std::string& named) : isTemporary_(named.empty()) {
    if (isTemporary_) {
      std::string name = (fs::temp_directory_path() / "orvanta-XXXXXX").string();
      if (mkdtemp(name.data()) == nullptr) {
        throw Failure(ExitCode::unreadable, name + ": no temporary folder can be made");
      }
      path_ = name;
    } else {
      std::error_code error;
      fs::create_directories(named, error);
      if (error) throw Failure(ExitCode::unreadable, printable(named) + ": " + error.message());
      path_ = fs::canonical(named);
      // One run at a time: another one on this folder waits here.
      lock_ = open((path_ / ".lock").c_str(), O_RDWR | O_CREAT | O_NOFOLLOW | O_CLOEXEC, 0600);
      if (lock_ < 0 || flock(lock_, LOCK_EX) != 0) {
        throw Failure(ExitCode::unreadable, printable(named) + ": the folder cannot be locked");
      }
    }
  }
  StateFolder(const StateFolder&) = delete;
  StateFolder& operator=(const StateFolder&) = delete;
  ~StateFolder() {
    std::error_code ignored;
    if (isTemporary_) fs::remove_all(path_, ignored);
    if (lock_ >= 0) close(lock_);
  }

  const fs::path& path() const { return path_; }
  /// A text in which the folder's paths and URLs read as "state/…".
  std::string neutral(std::string_view text) const {
    std::string result(text);
    const std::string url(Url::fileURLWithPath(path_.string() + "/").absoluteString());
    for (const std::string& from : {url, path_.string() + "/"}) {
      for (auto at = result.find(from); at != std::string::npos; at = result.find(from, at + 1)) {
        // Not inside a longer path.
        const char before = at == 0 ? ' ' : result[at - 1];
        const bool isInside = std::isalnum(static_cast<unsigned char>(before)) != 0 ||
                              std::string_view("/._-%").find(before) != std::string_view::npos;
        if (!isInside) result.replace(at, from.size(), "state/");
      }
    }
    return result;
  }

 private:
  bool isTemporary_;
  int lock_ = -1;
  fs::path path_;
};

UrlMapping mappingFrom(const std::string& argument) {
  const auto equals = argument.find('=');
  if (equals == std::string::npos || equals == 0 || equals + 1 == argument.size()) {
    throw Failure(ExitCode::usage,
                  "--map-url \"" + printable(argument) + "\": PREFIX=TARGET is needed");
  }
  UrlMapping mapping{argument.substr(0, equals), argument.substr(equals + 1)};
  if (mapping.isFolder() && !fs::is_directory(mapping.target)) {
    throw Failure(ExitCode::unreadable, printable(mapping.target) + ": no such folder (--map-url)");
  }
  return mapping;
}

/// Bytes with an optional k, M or G (powers of 1000).
std::uint64_t bytesFrom(const std::string& argument) {
  std::uint64_t bytes = 0;
  const char* end = argument.data() + argument.size();
  const auto result = std::from_chars(argument.data(), end, bytes);
  constexpr std::string_view kUnits = "kMG";
  std::uint64_t factor = 1;
  if (result.ec == std::errc() && result.ptr + 1 == end) {
    const auto unit = kUnits.find(*result.ptr);
    for (std::size_t i = 0; unit != std::string_view::npos && i <= unit; ++i) factor *= 1000;
  }
  const bool isWhole = result.ec == std::errc() && (result.ptr == end || factor != 1);
  if (!isWhole || bytes == 0 || bytes > 1'000'000'000'000U / factor) {
    throw Failure(ExitCode::usage, "--max-download \"" + printable(argument) +
                                       "\": a number of bytes is needed, such as 5M");
  }
  return bytes * factor;
}

Scenario scenarioFrom(const std::string& file, const Streams& streams) {
  if (file.empty()) return {};
  const Input input = readInput(file, streams);
  try {
    return Scenario::fromDictionary(input.object);
  } catch (const InputError& error) {
    throw Failure(ExitCode::unreadable, input.name + ": " + printable(error.what()));
  }
}

/// Draws a progress bar on the terminal's last line.
void drawProgress(std::uint64_t received, std::uint64_t expected) {
  constexpr std::uint64_t kWidth = 30;
  std::cerr << "\r  " << received / 1000 << " kB";
  if (expected >= received && expected != 0) {
    const std::uint64_t filled = received * kWidth / expected;
    std::cerr << " of " << expected / 1000 << " kB [" << std::string(filled, '#')
              << std::string(kWidth - filled, ' ') << "]";
  }
  std::cerr << std::flush;
}

}  // namespace

static ExitCode runNotify(const NotifyOptions& options, const Streams& streams) {
  if (!std::isfinite(options.timeBudget)) {
    throw Failure(ExitCode::usage, "--time-budget: a finite number of seconds is needed");
  }
  if (options.payload == "-" && options.scenario == "-") {
    throw Failure(ExitCode::usage, "standard input can be read only once");
  }
  HostOptions host;
  host.scenario = scenarioFrom(options.scenario, streams);
  if (!options.osVersion.empty()) {
    const auto version = parseVersion(options.osVersion);
    if (!version) {
      throw Failure(ExitCode::usage, "--os-version \"" + printable(options.osVersion) +
                                         "\": a version such as 17.0 is needed");
    }
    host.scenario.os = *version;
  }
  if (!options.resources.empty() && !fs::is_directory(options.resources)) {
    throw Failure(ExitCode::unreadable,
                  printable(options.resources) + ": no such folder (--resources)");
  }
  host.resources = options.resources;
  for (const std::string& mapping : options.mapUrls) {
    host.urlMappings.push_back(mappingFrom(mapping));
  }
  host.timeBudget = options.timeBudget;
  host.realTime = options.realTime;
  host.limits.bytes = bytesFrom(options.maxDownload);

  const Input input = readInput(options.payload, streams);
  const StateFolder state(options.state);
  const auto neutral = [&](std::string_view text) { return state.neutral(text); };
  host.stateFolder = state.path();
  RecordingLog log(streams.err);
  log.setFilter(neutral);
  host.log = &log;
  bool isDrawn = false;
  if (&streams.err == &std::cerr && isatty(STDERR_FILENO) != 0) {
    host.progress = [&](std::uint64_t received, std::uint64_t expected) {
      isDrawn = true;
      drawProgress(received, expected);
    };
  }

  const OperatingSystemVersion os = host.scenario.os.value_or(host.os);
  NotificationHost runner([] { return std::make_shared<OrvantaNotificationServiceExtension>(); },
                          std::move(host));
  HostReport report;
  try {
    report = runner.run(input.object);
  } catch (const fs::filesystem_error&) {
    throw;
  } catch (const std::runtime_error& error) {
    throw Failure(ExitCode::unreadable, printable(error.what()));
  }
  if (isDrawn) streams.err << "\r\033[K";
  if (options.json) {
    printJSON(ledger(report, log.entries(), neutral), streams.out, /*pretty=*/true);
  } else {
    printSheet(input, report, os, neutral, streams.out);
  }
  return ExitCode::done;
}

ExitCode notify(const NotifyOptions& options, const Streams& streams) {
  try {
    return runNotify(options, streams);
  } catch (const fs::filesystem_error& error) {
    throw Failure(ExitCode::unreadable,
                  (error.path1().empty() ? "temporary folder" : printable(error.path1().string())) +
                      ": " + error.code().message());
  }
}

}  // namespace orvanta::tool
