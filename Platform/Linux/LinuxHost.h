#pragma once

#include <filesystem>
#include <vector>

#include "orvanta/Linux/FolderDeviceFiles.h"
#include "orvanta/Linux/FolderStateStore.h"
#include "orvanta/Linux/GdImages.h"
#include "orvanta/Linux/MappingDownloader.h"
#include "orvanta/Simulator/HostServices.h"
#include "orvanta/Simulator/StringsFile.h"
#include "orvanta/Simulator/SystemClock.h"

namespace orvanta {

/// How this machine serves a simulated device.
struct LinuxHostOptions {
  std::filesystem::path resources{};  // the bundle's images and Localizable.strings; empty for none
  std::filesystem::path stateFolder{};  // downloads, caches, categories, donations; must exist
  std::vector<UrlMapping> urlMappings{};
  TransferLimits limits{};
  TransferProgress progress{};
  bool realTime = false;     // the run takes as long as the simulated device would
  SystemLog* log = nullptr;  // must outlive the host
};

/// This machine's files, network, images and clocks for a simulated device.
class LinuxHost {
 public:
  /// Throws std::runtime_error for a strings file or a folder that cannot be used.
  explicit LinuxHost(LinuxHostOptions options);

  /// Returns the services for one run. They live as long as this object.
  HostServices services();

 private:
  LinuxHostOptions options_;
  FolderDeviceFiles files_;
  FolderStateStore state_;
  MappingDownloader downloader_;
  SimulatedBundle bundle_;
  GdImages images_;
  SystemClock clock_;
};

}  // namespace orvanta
