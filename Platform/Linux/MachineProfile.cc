#include "orvanta/Linux/MachineProfile.h"

#include <ifaddrs.h>
#include <sys/socket.h>
#include <sys/statvfs.h>
#include <sys/utsname.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <memory>

#include "orvanta/Foundation/CharacterSet.h"

namespace orvanta {

namespace {

/// Returns the kernel's name of the machine, empty on failure.
std::string machineName() {
  utsname names{};
  return ::uname(&names) == 0 ? names.machine : "";
}

std::optional<std::int32_t> processorType() {
  const std::string machine = machineName();
  if (machine == "aarch64") return 16777228;
  if (machine.starts_with("arm")) return 12;
  return std::nullopt;  // the component knows no other
}

std::string wordIn(const std::filesystem::path& file) {
  std::string word;
  std::ifstream(file) >> word;
  return word;
}

/// Returns the level of the machine's own battery, -1 without one.
float batteryLevel() {
  namespace fs = std::filesystem;
  std::error_code error;
  for (fs::directory_iterator at("/sys/class/power_supply", error), end; !error && at != end;
       at.increment(error)) {
    const fs::path& supply = at->path();
    if (wordIn(supply / "type") != "Battery") continue;
    if (wordIn(supply / "scope") == "Device") continue;  // of a mouse or the like
    int percent = -1;
    std::ifstream(supply / "capacity") >> percent;
    if (percent >= 0 && percent <= 100) return static_cast<float>(percent) / 100.0F;
  }
  return -1.0F;
}

std::optional<std::uint64_t> memoryBytes(int countName) {
  const long pages = ::sysconf(countName);
  const long pageSize = ::sysconf(_SC_PAGESIZE);
  if (pages < 0 || pageSize < 0) return std::nullopt;
  return static_cast<std::uint64_t>(pages) * static_cast<std::uint64_t>(pageSize);
}

std::vector<SystemCalls::InterfaceAddress> interfaceAddresses() {
  ifaddrs* first = nullptr;
  if (::getifaddrs(&first) != 0) return {};
  const std::unique_ptr<ifaddrs, decltype(&::freeifaddrs)> list(first, &::freeifaddrs);
  std::vector<SystemCalls::InterfaceAddress> addresses;
  for (const ifaddrs* at = first; at != nullptr; at = at->ifa_next) {
    addresses.push_back({at->ifa_name, at->ifa_addr != nullptr ? at->ifa_addr->sa_family : 0});
  }
  return addresses;
}

/// Returns "de-DE" for "de_DE.UTF-8", nothing for "C" and what is not a name.
std::optional<std::string> preferredLocale() {
  constexpr CharacterSet kName = CharacterSet::alphanumerics().with("-");
  for (const char* const variable : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
    const char* const value = std::getenv(variable);
    if (value == nullptr || *value == '\0') continue;
    std::string name(value);
    name.resize(std::min(name.find_first_of(".@"), name.size()));
    std::replace(name.begin(), name.end(), '_', '-');
    const bool isName =
        std::all_of(name.begin(), name.end(), [&](char c) { return kName.contains(c); });
    if (name.empty() || name == "C" || name == "POSIX" || !isName) return std::nullopt;
    return name;
  }
  return std::nullopt;
}

void fillFileSystem(DeviceProfile& profile) {
  const char* const home = std::getenv("HOME");
  struct statvfs status {};
  if (::statvfs(home != nullptr && *home != '\0' ? home : "/", &status) != 0) return;
  if (!profile.diskSize) profile.diskSize = status.f_blocks * status.f_frsize;
  if (!profile.diskFree) profile.diskFree = status.f_bavail * status.f_frsize;
}

}  // namespace

DeviceProfile completedByMachine(DeviceProfile profile) {
  if (!profile.machine) {
    if (const std::string name = machineName(); !name.empty()) profile.machine = name;
  }
  if (!profile.cpuType) profile.cpuType = processorType();
  if (!profile.battery) profile.battery = batteryLevel();
  if (!profile.interfaces) profile.interfaces = interfaceAddresses();
  if (!profile.physicalMemory) profile.physicalMemory = memoryBytes(_SC_PHYS_PAGES);
  if (!profile.freeMemory) profile.freeMemory = memoryBytes(_SC_AVPHYS_PAGES);
  if (!profile.locale) profile.locale = preferredLocale();
  if (!profile.bash) profile.bash = ::access("/bin/bash", R_OK) == 0;
  fillFileSystem(profile);
  return profile;
}

}  // namespace orvanta
