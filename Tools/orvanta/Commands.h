#pragma once

#include <string>
#include <vector>

#include "Mapping/Class.h"
#include "Tool.h"

namespace orvanta::tool {

struct NotifyOptions {
  std::string payload = "-";
  bool json = false;
  std::string osVersion;  // empty: the scenario's, else the newest
  std::string resources;
  std::string state;     // empty: a fresh folder
  std::string scenario;  // file; empty for none
  std::vector<std::string> mapUrls;
  double timeBudget = 30.0;
  bool realTime = false;
  std::string maxDownload = "256M";
};
ExitCode notify(const NotifyOptions& options, const Streams& streams);

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

struct DeviceOptions {
  std::string device;  // profile file, or "host"; empty for the built-in phone
  bool all = false;
};
ExitCode device(const DeviceOptions& options, const Streams& streams);

/// The model class of that name; throws a usage Failure that names the nearest one.
const Class& classForArgument(const std::string& name);

}  // namespace orvanta::tool
