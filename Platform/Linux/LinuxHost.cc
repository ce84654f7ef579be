#include "orvanta/Linux/LinuxHost.h"

#include <chrono>
#include <thread>
#include <utility>

namespace orvanta {

namespace fs = std::filesystem;

static StringsTable readStrings(const fs::path& resources) {
  if (resources.empty()) return {};
  const fs::path file = resources / "Localizable.strings";
  const std::optional<std::string> strings = readRegularFile(file);
  return strings ? parseStrings(*strings, file.string()) : StringsTable();
}

LinuxHost::LinuxHost(LinuxHostOptions options)
    : options_(std::move(options)),
      files_(options_.stateFolder),
      state_(options_.stateFolder),
      downloader_(files_, options_.urlMappings, options_.limits, options_.progress),
      bundle_(readStrings(options_.resources)),
      images_(options_.resources) {}

HostServices LinuxHost::services() {
  HostServices services{.files = files_,
                        .state = state_,
                        .downloader = &downloader_,
                        .bundle = &bundle_,
                        .images = &images_,
                        .clock = &clock_,
                        .log = options_.log};
  if (options_.realTime) {
    using SteadyClock = std::chrono::steady_clock;
    services.wait = [start = std::optional<SteadyClock::time_point>()](double time) mutable {
      if (!start) start = SteadyClock::now();
      std::this_thread::sleep_until(*start + std::chrono::duration<double>(time));
    };
  }
  return services;
}

}  // namespace orvanta
