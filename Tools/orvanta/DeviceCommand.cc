#include "orvanta/Linux/MachineProfile.h"
#include "orvanta/Model/Device/OrvantaAppDeviceInfoUtil.h"
#include "orvanta/Simulator/ConfigReader.h"
#include "orvanta/Simulator/RecordingLog.h"
#include "orvanta/Simulator/SimulatedDevice.h"
#include "orvanta/Tool/Commands.h"
#include "orvanta/Tool/Input.h"
#include "orvanta/Tool/Text.h"

namespace orvanta::tool {

static DeviceProfile profileFrom(const std::string& argument, const Streams& streams) {
  if (argument.empty()) return DeviceProfile::phone();
  if (argument == "host") return {};
  const Input input = readInput(argument, streams);
  try {
    return DeviceProfile::fromDictionary(input.object);
  } catch (const ConfigError& error) {
    throw CommandError(ExitCode::unreadable, input.name + ": " + escapeForTerminal(error.what()));
  }
}

ExitCode device(const DeviceOptions& options, const Streams& streams) {
  RecordingLog log(streams.err);
  SimulatedDevice device(completedByMachine(profileFrom(options.device, streams)), &log);
  const PlatformOverride override(device);
  const Dictionary info = options.all
                              ? OrvantaAppDeviceInfoUtil::allDeviceInfo()->dictionaryValue()
                              : OrvantaAppDeviceInfoUtil::currentAppDeviceInfo()->dictionaryValue();
  printJSON(info, streams.out, /*pretty=*/true);
  return ExitCode::done;
}

}  // namespace orvanta::tool
