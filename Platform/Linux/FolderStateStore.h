#pragma once

#include <filesystem>

#include "orvanta/Simulator/StateStore.h"

namespace orvanta {

/// Keeps a simulated device's state as files of a folder.
class FolderStateStore final : public StateStore {
 public:
  explicit FolderStateStore(std::filesystem::path folder) : folder_(std::move(folder)) {}
  std::optional<std::string> read(const std::string& name) override;
  void write(const std::string& name, const std::string& contents) override;
  void append(const std::string& name, const std::string& line) override;
  std::string location(const std::string& name) const override { return (folder_ / name).string(); }

 private:
  std::filesystem::path folder_;
};

/// Returns the contents of a regular file, nothing where there is none. Throws std::runtime_error
/// for anything else of that name, and for a file that cannot be read.
std::optional<std::string> readRegularFile(const std::filesystem::path& file);

}  // namespace orvanta
