#include "orvanta/Linux/HostDevice.h"

#include <ifaddrs.h>
#include <sys/socket.h>
#include <sys/statvfs.h>
#include <sys/utsname.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <memory>

#include "orvanta/Foundation/CharacterSet.h"

namespace orvanta {

namespace {

/// The machine field; empty on failure.
std::string machineOfHost() {
  utsname names{};
  return ::uname(&names) == 0 ? names.machine : "";
}

std::optional<std::int32_t> cpuTypeOfHost() {
  const std::string machine = machineOfHost();
  if (machine == "aarch64") return 16777228;
  if (machine.starts_with("arm")) return 12;
  return std::nullopt;  // no other processor has a meaning to the component
}

std::string wordIn(const std::filesystem::path& file) {
  std::string word;
  std::ifstream(file) >> word;
  return word;
}

/// The level of the machine's own battery; -1 without one.
float batteryOfHost() {
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

std::optional<std::uint64_t> memoryOfHost(int countName) {
  const long pages = ::sysconf(countName);
  const long pageSize = ::sysconf(_SC_PAGESIZE);
  if (pages < 0 || pageSize < 0) return std::nullopt;
  return static_cast<std::uint64_t>(pages) * static_cast<std::uint64_t>(pageSize);
}

std::vector<SystemCalls::InterfaceAddress> addressesOfHost() {
  ifaddrs* first = nullptr;
  if (::getifaddrs(&first) != 0) return {};
  const std::unique_ptr<ifaddrs, decltype(&::freeifaddrs)> list(first, &::freeifaddrs);
  std::vector<SystemCalls::InterfaceAddress> addresses;
  for (const ifaddrs* at = first; at != nullptr; at = at->ifa_next) {
    addresses.push_back({at->ifa_name, at->ifa_addr != nullptr ? at->ifa_addr->sa_family : 0});
  }
  return addresses;
}

/// "de-DE" of "de_DE.UTF-8"; none for "C" and what is no name.
std::optional<std::string> localeOfHost() {
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

}  // namespace

float HostDevice::batteryLevel() {
  if (!monitorsBattery_) return -1.0F;
  return profile_.battery ? *profile_.battery : batteryOfHost();
}

std::vector<Ref<CTCarrier>> HostDevice::serviceSubscriberCellularProviders() {
  std::vector<Ref<CTCarrier>> carriers;
  for (const std::string& name : profile_.carriers) {
    carriers.push_back(CTCarrier::carrierWithName(name));
  }
  return carriers;
}

Ref<CTCarrier> HostDevice::subscriberCellularProvider() {
  if (profile_.carriers.empty()) return nullptr;
  return CTCarrier::carrierWithName(profile_.carriers.front());
}

std::uint64_t HostDevice::physicalMemory() {
  if (profile_.physicalMemory) return *profile_.physicalMemory;
  return memoryOfHost(_SC_PHYS_PAGES).value_or(0);
}

std::string HostDevice::NSHomeDirectory() {
  const char* const home = std::getenv("HOME");
  return home != nullptr && *home != '\0' ? home : "/";
}

FileSystems::Attributes HostDevice::attributesOfFileSystemForPath(const std::string& path) {
  Attributes attributes{profile_.diskSize, profile_.diskFree};
  struct statvfs status {};
  if (::statvfs(path.c_str(), &status) == 0) {
    if (!attributes.systemSize) attributes.systemSize = status.f_blocks * status.f_frsize;
    if (!attributes.systemFreeSize) attributes.systemFreeSize = status.f_bavail * status.f_frsize;
  }
  return attributes;
}

std::optional<std::string> HostDevice::sysctlbyname(std::string_view name) {
  if (name == "hw.machine") {
    std::optional<std::string> machine = profile_.hwMachine ? profile_.hwMachine : uname();
    if (machine) machine->push_back('\0');
    return machine;
  }
  if (name != "hw.cputype") return std::nullopt;
  const std::optional<std::int32_t> type = profile_.cpuType ? profile_.cpuType : cpuTypeOfHost();
  if (!type) return std::nullopt;
  return std::string(reinterpret_cast<const char*>(&*type), sizeof *type);
}

std::optional<std::string> HostDevice::uname() {
  if (profile_.machine) return profile_.machine;
  std::string machine = machineOfHost();
  if (machine.empty()) return std::nullopt;
  return machine;
}

std::vector<SystemCalls::InterfaceAddress> HostDevice::getifaddrs() {
  return profile_.interfaces ? *profile_.interfaces : addressesOfHost();
}

std::optional<SystemCalls::VMStatistics> HostDevice::hostStatistics() {
  constexpr std::uint64_t kPageSize = 16384;
  const auto bytes = profile_.freeMemory ? *profile_.freeMemory : memoryOfHost(_SC_AVPHYS_PAGES);
  if (!bytes) return std::nullopt;
  return VMStatistics{*bytes / kPageSize, kPageSize};
}

bool HostDevice::fopen(const std::string& path) {
  if (profile_.bash && path == "/bin/bash") return *profile_.bash;
  std::FILE* const file = std::fopen(path.c_str(), "re");
  return file != nullptr && std::fclose(file) == 0;
}

std::vector<std::string> HostDevice::preferredLocalizations() {
  const auto locale = profile_.locale ? *profile_.locale : localeOfHost();
  return locale ? std::vector{*locale} : std::vector<std::string>{};
}

}  // namespace orvanta
