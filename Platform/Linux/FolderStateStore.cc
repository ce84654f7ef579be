#include "orvanta/Linux/FolderStateStore.h"

#include <fstream>
#include <iterator>
#include <stdexcept>
#include <system_error>

namespace orvanta {

namespace fs = std::filesystem;

std::optional<std::string> readRegularFile(const fs::path& file) {
  std::error_code error;
  const fs::file_status status = fs::status(file, error);
  if (status.type() == fs::file_type::not_found) return std::nullopt;
  if (error) throw fs::filesystem_error("cannot be read", file, error);
  std::ifstream in;
  if (fs::is_regular_file(status)) in.open(file, std::ios::binary);
  if (!in.is_open()) throw std::runtime_error(file.string() + ": cannot be read");
  return std::string{std::istreambuf_iterator<char>(in), {}};
}

std::optional<std::string> FolderStateStore::read(const std::string& name) {
  return readRegularFile(folder_ / name);
}

void FolderStateStore::write(const std::string& name, const std::string& contents) {
  // The rename replaces the old file at once, so that no reader sees half of the new one.
  const fs::path file = folder_ / name;
  const fs::path fresh = file.string() + ".new";
  std::ofstream out(fresh, std::ios::binary);
  out << contents;
  std::error_code error;
  if (out.flush()) fs::rename(fresh, file, error);
  if (!out || error) throw std::runtime_error(file.string() + ": cannot be written");
}

void FolderStateStore::append(const std::string& name, const std::string& line) {
  const fs::path file = folder_ / name;
  std::ofstream out(file, std::ios::binary | std::ios::app);
  out << line;
  if (!out.flush()) throw std::runtime_error(file.string() + ": cannot be written");
}

}  // namespace orvanta
