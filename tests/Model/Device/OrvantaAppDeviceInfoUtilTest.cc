#include <gtest/gtest.h>

#include "orvanta/Model/Device/OrvantaAppDeviceInfoUtil.h"
#include "orvanta/Simulator/SimulatedDevice.h"
#include "support/LogLevel.h"
#include "support/ModelHelpers.h"
#include "support/RecordingPlatform.h"

namespace orvanta::testing {
namespace {

using Util = OrvantaAppDeviceInfoUtil;

/// A property of the device of a profile, as JSON.
template <class Fact>
std::string fact(const std::string& profile, Fact (*read)()) {
  SimulatedDevice device(DeviceProfile::fromDictionary(dictionaryFromJSON(profile)));
  const PlatformOverride override(device);
  if constexpr (std::is_same_v<Fact, PropertyValue<String>>) {
    return read().isPresent() ? toJSON(Array{read().raw()}) : "nil";
  } else {
    return toJSON(Array{read()});
  }
}

TEST(DeviceInfo, ReadsEachProperty) {
  const std::pair<std::string, std::string> facts[] = {
      // only the last digit of a 32-bit device's minor number counts
      {fact(R"({"cpuType":12,"hwMachine":"iPad3,10"})", Util::architecture), R"(["armv7"])"},
      {fact(R"({"cpuType":12,"hwMachine":"iPad3,7"})", Util::architecture), R"(["armv7"])"},
      {fact(R"({"cpuType":12,"hwMachine":"iPad3,14"})", Util::architecture), R"(["armv7s"])"},
      {fact(R"({"cpuType":12,"machine":"iPhone5,4"})", Util::architecture), R"(["armv7s"])"},
      {fact(R"({"cpuType":12,"hwMachine":""})", Util::architecture), R"(["armv7"])"},
      {fact(R"({"cpuType":16777228})", Util::architecture), R"(["arm64"])"},
      {fact(R"({"cpuType":16777223})", Util::architecture), "nil"},
      {fact(R"({"battery":-1})", Util::batteryLevel), "[100]"},
      {fact(R"({"battery":0.5})", Util::batteryLevel), "[50]"},
      {fact(R"({"battery":0.29})", Util::batteryLevel), "[29]"},  // 28 in double
      {fact(R"({"orientation":7})", Util::orientation), R"(["Unknown"])"},
      {fact(R"({"orientation":-1})", Util::orientation), R"(["Unknown"])"},
      {fact(R"({"diskSize":127989493760})", Util::totalDisk), "[122060]"},
      {fact(R"({"physicalMemory":6442450943})", Util::totalRAM), "[6144]"},
      {fact(R"({"diskFree":9223372036854775807})", Util::freeDisk), "[8796093022208]"},
      {fact(R"({"freeMemory":1073741824})", Util::freeRAM), "[1024]"},
      {fact(R"({"freeMemory":null})", Util::freeRAM), "[18446744073709551615]"},
      {fact(R"({"screen":{"width":0.5,"height":1e6,"scale":2.9}})", Util::resolution),
       R"(["1.45x2.9e+06"])"},
      {fact(R"({"screen":{"width":1,"height":1,"scale":2.9}})", Util::density), R"(["@2x"])"},
      {fact(R"({"bundle":{"CFBundleVersion":7}})", Util::appBuild), "[7]"},
      {fact(R"({"bash":true})", Util::isJailbroken), "[true]"},
  };
  for (const auto& [read, expected] : facts) EXPECT_EQ(read, expected);
}

TEST(DeviceInfo, DeterminesTheConnectionByInterfacesAndRadio) {
  const auto type = [](const std::string& interfaces, const std::string& radio) {
    return fact(R"({"interfaces":[)" + interfaces + R"(],"radio":)" + radio + "}",
                Util::connectionType);
  };
  const std::string lte = R"("CTRadioAccessTechnologyLTE")";
  EXPECT_EQ(type(R"({"name":"pdp_ip0"},{"name":"en0"})", lte), "[1]");
  EXPECT_EQ(type(R"({"name":"en0"},{"name":"pdp_ip0"})", lte), "[1]");
  EXPECT_EQ(type(R"({"name":"en0","ipv4":false},{"name":"pdp_ip0"},{"name":"lo0"})", lte), "[5]");
  EXPECT_EQ(type(R"({"name":"pdp_ip0","ipv4":false},{"name":"en1"})", lte), "[0]");
  EXPECT_EQ(type(R"({"name":"pdp_ip0"})", R"("CTRadioAccessTechnologyEdge")"), "[3]");
  EXPECT_EQ(type(R"({"name":"pdp_ip0"})", R"("CTRadioAccessTechnologyeHRPD")"), "[4]");
  EXPECT_EQ(type(R"({"name":"pdp_ip0"})", R"("CTRadioAccessTechnologyNR")"), "[2]");
  EXPECT_EQ(type(R"({"name":"pdp_ip0"})", "null"), "[2]");
}

/// A platform whose carriers depend on the call and whose radio throws.
struct Faulty final : Platform, CTTelephonyNetworkInfo {
  SimulatedDevice phone{DeviceProfile::phone()};  // with "pdp_ip0" before "en0"
  RecordingPlatform recorder;
  PlatformOverride override{*this};
  OperatingSystemVersion version;

  SystemLog* systemLog() override { return recorder.systemLog(); }
  SystemCalls* systemCalls() override { return phone.systemCalls(); }
  OperatingSystemVersion operatingSystemVersion() override { return version; }
  CTTelephonyNetworkInfo* telephonyNetworkInfo() override { return this; }
  std::vector<Ref<CTCarrier>> serviceSubscriberCellularProviders() override {
    return {CTCarrier::carrierWithName("first"), CTCarrier::carrierWithName("second")};
  }
  Ref<CTCarrier> subscriberCellularProvider() override { return nullptr; }
  std::optional<std::string> currentRadioAccessTechnology() override {
    throw Exception(Exception::kInvalidArgument, "no radio");
  }
};

TEST(DeviceInfo, ReturnsTheFirstOfSeveralCarriersFromVersion12) {
  Faulty platform;
  platform.version = {11, 4, 1};
  EXPECT_FALSE(Util::carrierName().isPresent());
  platform.version = {12, 0, 0};
  EXPECT_EQ(Util::carrierName().get(), "first");
}

TEST(DeviceInfo, LogsAnExceptionAndReturnsTheDefault) {
  const std::string line =
      "\n\n❗ +[OrvantaAppDeviceInfoUtil connectionType] (OrvantaAppDeviceInfoUtil:0) ❗\n"
      "Connection type can not be retrieved: \nno radio\n\n";
  for (const int level : {1, 0}) {
    const LogLevel scope(level);
    Faulty platform;
    EXPECT_EQ(Util::connectionType(), 2);
    EXPECT_EQ(platform.recorder.log, std::vector<std::string>(level == 1 ? 1 : 0, line));
  }
}

TEST(DeviceInfo, FillsTheModelOnAPlatformWithoutServices) {
  Platform none;
  const PlatformOverride override(none);
  EXPECT_EQ(toJSON(Util::allDeviceInfo()->dictionaryValue()),
            R"({"osn":"iOS","ct":0,"td":0,"tr":0,"bl":100,"ogv":"","mnf":"Apple"})");
  EXPECT_EQ(Util::freeRAM(), ~std::uint64_t{0});
  EXPECT_EQ(toJSON(modelFromJSON<OrvantaAppAllDeviceInfo>(R"({"lo":"de"})")->dictionaryValue()),
            R"({"lo":"de","ct":0,"td":0,"tr":0,"bl":0,"lang":"de"})");
}

}  // namespace
}  // namespace orvanta::testing
