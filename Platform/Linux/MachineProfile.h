#pragma once

#include "orvanta/Simulator/DeviceProfile.h"

namespace orvanta {

/// Returns the profile with what it does not set read from this machine: machine name, processor,
/// battery, network interfaces, memory, the home folder's file system, locale and whether there is
/// a shell.
DeviceProfile completedByMachine(DeviceProfile profile);

}  // namespace orvanta
