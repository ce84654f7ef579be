#include "orvanta/Simulator/SimulatedDevice.h"

namespace orvanta {

float SimulatedDevice::batteryLevel() {
  return monitorsBattery_ ? profile_.battery.value_or(-1.0F) : -1.0F;
}

std::vector<Ref<CTCarrier>> SimulatedDevice::serviceSubscriberCellularProviders() {
  std::vector<Ref<CTCarrier>> carriers;
  for (const std::string& name : profile_.carriers) {
    carriers.push_back(CTCarrier::carrierWithName(name));
  }
  return carriers;
}

Ref<CTCarrier> SimulatedDevice::subscriberCellularProvider() {
  if (profile_.carriers.empty()) return nullptr;
  return CTCarrier::carrierWithName(profile_.carriers.front());
}

std::uint64_t SimulatedDevice::physicalMemory() { return profile_.physicalMemory.value_or(0); }

std::string SimulatedDevice::NSHomeDirectory() { return "/"; }

FileSystems::Attributes SimulatedDevice::attributesOfFileSystemForPath(
    const std::string& /*path*/) {
  return {profile_.diskSize, profile_.diskFree};
}

std::optional<std::string> SimulatedDevice::sysctlbyname(std::string_view name) {
  if (name == "hw.machine") {
    std::optional<std::string> machine = profile_.hwMachine ? profile_.hwMachine : uname();
    if (machine) machine->push_back('\0');
    return machine;
  }
  if (name != "hw.cputype" || !profile_.cpuType) return std::nullopt;
  return std::string(reinterpret_cast<const char*>(&*profile_.cpuType), sizeof *profile_.cpuType);
}

std::optional<std::string> SimulatedDevice::uname() { return profile_.machine; }

std::vector<SystemCalls::InterfaceAddress> SimulatedDevice::getifaddrs() {
  return profile_.interfaces.value_or(std::vector<InterfaceAddress>());
}

std::optional<SystemCalls::VMStatistics> SimulatedDevice::hostStatistics() {
  constexpr std::uint64_t kPageSize = 16384;
  const auto bytes = profile_.freeMemory.value_or(std::nullopt);
  if (!bytes) return std::nullopt;
  return VMStatistics{*bytes / kPageSize, kPageSize};
}

bool SimulatedDevice::fopen(const std::string& path) {
  return path == "/bin/bash" && profile_.bash.value_or(false);
}

std::vector<std::string> SimulatedDevice::preferredLocalizations() {
  const auto locale = profile_.locale.value_or(std::nullopt);
  return locale ? std::vector{*locale} : std::vector<std::string>{};
}

}  // namespace orvanta
