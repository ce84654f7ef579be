#include "orvanta/Linux/ClockAndLog.h"
#include "orvanta/Linux/HostDevice.h"
#include "orvanta/Linux/KeyReaders.h"
#include "orvanta/Model/Device/OrvantaAppDeviceInfoUtil.h"
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
  } catch (const InputError& error) {
    throw Failure(ExitCode::unreadable, input.name + ": " + printable(error.what()));
  }
}

ExitCode device(const DeviceOptions& options, const Streams& streams) {
  RecordingLog log(streams.err);
  HostDevice device(profileFrom(options.device, streams), &log);
  const PlatformOverride override(device);
  const Dictionary info = options.all
                              ? OrvantaAppDeviceInfoUtil::allDeviceInfo()->dictionaryValue()
                              : OrvantaAppDeviceInfoUtil::currentAppDeviceInfo()->dictionaryValue();
  printJSON(info, streams.out, /*pretty=*/true);
  return ExitCode::done;
}

}  // namespace orvanta::tool
