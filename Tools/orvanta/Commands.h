#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "orvanta/Tool/CommandLine.h"

namespace orvanta::tool {

struct NotifyOptions {
  std::string payload = "-";
  bool json = false;
  std::string osVersion;  // empty: from the scenario, or the newest
  std::string resources;  // folder; empty for none
  std::string state;      // folder; empty for a temporary one
  std::string scenario;   // file; empty for none
  std::vector<std::string> mapUrls;
  double timeBudget = 30.0;
  bool realTime = false;
  std::uint64_t maxDownload = 0;  // bytes; the parser sets the default
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
  bool markdown = false;
};
ExitCode schema(const SchemaOptions& options, const Streams& streams);

struct RequestOptions {
  std::string className;
  std::string file = "-";
  bool text = false;
};
ExitCode request(const RequestOptions& options, const Streams& streams);

struct BatchOptions {
  std::vector<std::string> files;  // empty: standard input
};
ExitCode batch(const BatchOptions& options, const Streams& streams);

struct ReplayOptions {
  std::string file = "-";
  bool json = false;
  std::uint64_t jobs = 1;
};
ExitCode replay(const ReplayOptions& options, const Streams& streams);

struct IdentifierOptions {
  std::uint64_t count = 1;
  std::optional<std::string> decode;  // absent: generate identifiers
};
ExitCode identifier(const IdentifierOptions& options, const Streams& streams);

struct DeviceOptions {
  std::string device;  // profile file, or "host"; empty for the built-in phone
  bool all = false;
};
ExitCode device(const DeviceOptions& options, const Streams& streams);

}  // namespace orvanta::tool
