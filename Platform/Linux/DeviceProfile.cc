#include "orvanta/Linux/DeviceProfile.h"

#include <limits>

#include "orvanta/Foundation/Array.h"
#include "orvanta/Foundation/JSON.h"
#include "orvanta/Linux/KeyReaders.h"
#include "orvanta/Linux/Scenario.h"

namespace orvanta {

namespace {

using namespace reading;

std::int32_t wholeNumber32(const Value& value) {
  using Limits = std::numeric_limits<std::int32_t>;
  return static_cast<std::int32_t>(wholeNumber(value, Limits::min(), Limits::max()));
}

std::uint64_t bytes(const Value& value) {
  constexpr std::int64_t kMost = std::numeric_limits<std::int64_t>::max();
  return static_cast<std::uint64_t>(wholeNumber(value, 0, kMost));
}

float batteryLevel(const Value& value) {
  const std::string what = "a number from 0 to 1, or -1,";
  const double level = number(value, -1.0, 1.0, what);
  if (level < 0.0 && level != -1.0) refuse(what + " is needed");
  return static_cast<float>(level);
}

DeviceProfile::Screen readScreen(const Value& value) {
  for (const char* const key : {"width", "height", "scale"}) {
    if (!dictionary(value).contains(key)) refuse("width, height and scale are needed");
  }
  const auto points = [](const Value& v) {
    return number(v, 0.0, 1e6, "a number of points from 0 to 1e6");
  };
  DeviceProfile::Screen screen;
  readAll(dictionary(value), "screen.",
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
  const std::string needed = "an array of dictionaries with a name is needed";
  if (value.array() == nullptr) refuse(needed);
  std::vector<SystemCalls::InterfaceAddress> addresses;
  for (const Value& element : *value.array()) {
    if (element.dictionary() == nullptr || !element.dictionary()->contains("name")) refuse(needed);
    SystemCalls::InterfaceAddress address{.name = {}, .family = kIPv4};
    readAll(*element.dictionary(), "interfaces[" + std::to_string(addresses.size()) + "].",
            {{"name", [&](const Value& v) { address.name = text(v); }},
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

DeviceProfile DeviceProfile::fromDictionary(const Dictionary& given) {
  DeviceProfile made;
  readAll(given, "",
          {{"systemVersion",
            [&](const Value& v) {
              made.systemVersion = text(v);
              const auto numbers = parseVersion(made.systemVersion);
              if (!numbers) refuse("a version such as \"17.0\" is needed");
              made.version = *numbers;
            }},
           {"machine", [&](const Value& v) { made.machine = text(v); }},
           {"hwMachine", [&](const Value& v) { made.hwMachine = text(v); }},
           {"cpuType", [&](const Value& v) { made.cpuType = wholeNumber32(v); }},
           {"screen", [&](const Value& v) { made.screen = readScreen(v); }},
           {"battery", [&](const Value& v) { made.battery = batteryLevel(v); }},
           {"orientation", [&](const Value& v) { made.orientation = wholeNumber32(v); }},
           {"carriers", [&](const Value& v) { made.carriers = texts(v); }},
           {"radio", [&](const Value& v) { made.radio = textOrNull(v); }},
           {"interfaces", [&](const Value& v) { made.interfaces = readInterfaces(v); }},
           {"physicalMemory", [&](const Value& v) { made.physicalMemory = bytes(v); }},
           {"freeMemory",
            [&](const Value& v) {
              made.freeMemory = v.isNull() ? std::nullopt : std::optional(bytes(v));
            }},
           {"diskSize", [&](const Value& v) { made.diskSize = bytes(v); }},
           {"diskFree", [&](const Value& v) { made.diskFree = bytes(v); }},
           {"locale", [&](const Value& v) { made.locale = textOrNull(v); }},
           {"bundle", [&](const Value& v) { made.bundle = dictionary(v); }},
           {"bash", [&](const Value& v) { made.bash = flag(v); }}});
  return made;
}

DeviceProfile DeviceProfile::phone() { return fromDictionary(*parseJSON(kPhone).dictionary()); }

}  // namespace orvanta
