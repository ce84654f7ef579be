#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>
#include <string_view>

#include "orvanta/Foundation/Url.h"

namespace orvanta::testing {

/// A new folder, removed with its contents by the destructor.
class TemporaryFolder {
 public:
  explicit TemporaryFolder(
      const std::filesystem::path& parent = std::filesystem::temp_directory_path()) {
    std::string name = (parent / "orvanta-test-XXXXXX").string();
    if (mkdtemp(name.data()) == nullptr) throw std::runtime_error("no folder: " + name);
    path_ = name;
  }
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;
  ~TemporaryFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }

  const std::filesystem::path& path() const { return path_; }
  std::filesystem::path operator/(std::string_view name) const { return path_ / name; }
  Url url(std::string_view name) const { return Url::fileURLWithPath((path_ / name).string()); }

  /// Writes a file and returns its URL.
  Url write(std::string_view name, std::string_view content) const {
    std::ofstream(path_ / name, std::ios::binary) << content;
    return url(name);
  }
  /// Writes a file and returns its path.
  std::string file(std::string_view name, std::string_view content) const {
    return write(name, content).path();
  }
  std::string read(std::string_view name) const {
    std::ifstream in(path_ / name, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
  }

 private:
  std::filesystem::path path_;
};

}  // namespace orvanta::testing
