#pragma once

#include <string>
#include <vector>

#include "Mapping/Class.h"
#include "Platform/Linux/LinuxPlatform.h"
#include "Tool.h"

namespace orvanta::tool {

struct NotifyOptions {
  std::string payload = "-";
  bool json = false;
};
ExitCode notify(const NotifyOptions& options, const LinuxPlatform& platform,
                const Streams& streams);

struct ModelOptions {
  std::string className;
  std::string file = "-";
  bool init = false;
  std::vector<std::string> updates;
  bool classInfo = false;
  bool pretty = false;
};
ExitCode model(const ModelOptions& options, const Streams& streams);

struct SchemaOptions {
  std::string className;  // empty for all
  bool json = false;
};
ExitCode schema(const SchemaOptions& options, const Streams& streams);

/// The model class of that name; throws a usage Failure that names the nearest one.
const Class& classForArgument(const std::string& name);

}  // namespace orvanta::tool
