#include "orvanta/Simulator/DeviceProfile.h"

#include <limits>

#include "orvanta/Foundation/Array.h"
#include "orvanta/Foundation/JSON.h"
#include "orvanta/Simulator/ConfigReader.h"
#include "orvanta/Simulator/Scenario.h"

namespace orvanta {

namespace {

using namespace config;

std::int32_t wholeNumber32(const Value& value) {
  using Limits = std::numeric_limits<std::int32_t>;
  return static_cast<std::int32_t>(wholeNumber(value, Limits::min(), Limits::max()));
}

std::uint64_t bytes(const Value& value) {
  constexpr std::int64_t kMax = std::numeric_limits<std::int64_t>::max();
  return static_cast<std::uint64_t>(wholeNumber(value, 0, kMax));
}

float batteryLevel(const Value& value) {
  const std::string expectation = "a number from 0 to 1, or -1";
  const double level = number(value, -1.0, 1.0, expectation);
  if (level < 0.0 && level != -1.0) fail(expectation);
  return static_cast<float>(level);
}

DeviceProfile::Screen readScreen(const Value& value) {
  for (const char* const key : {"width", "height", "scale"}) {
    if (!dictionary(value).contains(key)) fail("an object with width, height and scale");
  }
  const auto points = [](const Value& v) {
    return number(v, 0.0, 1e6, "a number of points from 0 to 1e6");
  };
  DeviceProfile::Screen screen;
  read(dictionary(value), "screen.",
       {{"width", [&](const Value& v) { screen.points.width = points(v); }},
        {"height", [&](const Value& v) { screen.points.height = points(v); }},
        {"scale", [&](const Value& v) {
           screen.scale = number(v, 0.0, 1000.0, "a number from 0 to 1000");
         }}});
  return screen;
}

std::vector<SystemCalls::InterfaceAddress> readInterfaces(const Value& value) {
  constexpr int kIPv4 = 2;
  constexpr int kIPv6 = 30;
  const std::string expectation = "an array of objects with a name";
  if (value.array() == nullptr) fail(expectation);
  std::vector<SystemCalls::InterfaceAddress> addresses;
  for (const Value& element : *value.array()) {
    if (element.dictionary() == nullptr || !element.dictionary()->contains("name"))
      fail(expectation);
    SystemCalls::InterfaceAddress address{.name = {}, .family = kIPv4};
    read(*element.dictionary(), "interfaces[" + std::to_string(addresses.size()) + "].",
         {{"name", [&](const Value& v) { address.name = string(v); }},
          {"ipv4", [&](const Value& v) { address.family = flag(v) ? kIPv4 : kIPv6; }}});
    addresses.push_back(std::move(address));
  }
  return addresses;
}

constexpr std::string_view kPhone = R"({
  "systemVersion": "17.0",
  "machine": "iPhone15,2",
  "cpuType": 16777228,
  "screen": {"width": 393, "height": 852, "scale": 3},
  "battery": 0.8,
  "orientation": 1,
  "carriers": ["Example Mobile"],
  "radio": "CTRadioAccessTechnologyLTE",
  "interfaces": [{"name": "lo0"}, {"name": "pdp_ip0"}, {"name": "en0"}],
  "physicalMemory": 6442450944,
  "freeMemory": 1073741824,
  "diskSize": 127989493760,
  "diskFree": 64000000000,
  "locale": "en",
  "bundle": {"CFBundleShortVersionString": "2.4.1", "CFBundleVersion": "241"},
  "bash": false
})";

}  // namespace

DeviceProfile DeviceProfile::fromDictionary(const Dictionary& dictionary) {
  DeviceProfile profile;
  read(dictionary, "",
       {{"systemVersion",
         [&](const Value& v) {
           profile.systemVersion = string(v);
           const auto numbers = parseVersion(profile.systemVersion);
           if (!numbers) fail("a version such as \"17.0\"");
           profile.version = *numbers;
         }},
        {"machine", [&](const Value& v) { profile.machine = string(v); }},
        {"hwMachine", [&](const Value& v) { profile.hwMachine = string(v); }},
        {"cpuType", [&](const Value& v) { profile.cpuType = wholeNumber32(v); }},
        {"screen", [&](const Value& v) { profile.screen = readScreen(v); }},
        {"battery", [&](const Value& v) { profile.battery = batteryLevel(v); }},
        {"orientation", [&](const Value& v) { profile.orientation = wholeNumber32(v); }},
        {"carriers", [&](const Value& v) { profile.carriers = strings(v); }},
        {"radio", [&](const Value& v) { profile.radio = stringOrNull(v); }},
        {"interfaces", [&](const Value& v) { profile.interfaces = readInterfaces(v); }},
        {"physicalMemory", [&](const Value& v) { profile.physicalMemory = bytes(v); }},
        {"freeMemory",
         [&](const Value& v) {
           profile.freeMemory = v.isNull() ? std::nullopt : std::optional(bytes(v));
         }},
        {"diskSize", [&](const Value& v) { profile.diskSize = bytes(v); }},
        {"diskFree", [&](const Value& v) { profile.diskFree = bytes(v); }},
        {"locale", [&](const Value& v) { profile.locale = stringOrNull(v); }},
        {"bundle", [&](const Value& v) { profile.bundle = config::dictionary(v); }},
        {"bash", [&](const Value& v) { profile.bash = flag(v); }}});
  return profile;
}

DeviceProfile DeviceProfile::phone() { return fromDictionary(*parseJSON(kPhone).dictionary()); }

}  // namespace orvanta
