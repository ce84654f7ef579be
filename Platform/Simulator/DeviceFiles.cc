#include "orvanta/Simulator/DeviceFiles.h"

#include <cstdio>

#include "orvanta/Simulator/MoveErrors.h"

namespace orvanta {

static constexpr std::string_view kHome = "/state/";

std::string downloadName(unsigned number) {
  char name[64];
  std::snprintf(name, sizeof name, "CFNetworkDownload_%06u.tmp", number);
  return name;
}

std::optional<Url> InMemoryDeviceFiles::makeDownload(const std::optional<std::string>& name,
                                                     std::uint64_t size) {
  const auto isTaken = [&](const std::string& candidate) {
    return sizes_.contains(url("tmp/" + candidate).path()) ||
           sizes_.contains(url("Caches/" + candidate).path());
  };
  std::string fileName = name.value_or("");
  for (unsigned number = 1; !name && (fileName.empty() || isTaken(fileName)); ++number) {
    fileName = downloadName(number);
  }
  const Url file = url("tmp/" + fileName);
  if (!sizes_.emplace(file.path(), size).second) return std::nullopt;
  return file;
}

void InMemoryDeviceFiles::makeCacheFile(const std::string& name) {
  sizes_.emplace(url("Caches/" + name).path(), 0);
}

void InMemoryDeviceFiles::remove(const Url& file) { sizes_.erase(file.path()); }

std::optional<std::uint64_t> InMemoryDeviceFiles::size(const Url& file) {
  const auto entry = file.isFileURL() ? sizes_.find(file.path()) : sizes_.end();
  return entry != sizes_.end() ? std::optional(entry->second) : std::nullopt;
}

Url InMemoryDeviceFiles::url(const std::string& name) const {
  return Url::fileURLWithPath(std::string(kHome) + name);
}

std::vector<Url> InMemoryDeviceFiles::URLsForCachesDirectory() { return {url("Caches/")}; }

Ref<NSError> InMemoryDeviceFiles::moveItemAtURL(const Url& source, const Url& destination) {
  if (Ref<NSError> error = schemeError(source, destination)) return error;
  const auto fail = [&](MoveFailure failure, int code, const char* message) {
    return moveError(failure, {code, message}, source.path(), destination.path());
  };
  const auto file = sizes_.find(source.path());
  if (file == sizes_.end()) return fail(MoveFailure::notFound, 2, "No such file or directory");
  if (!sizes_.emplace(destination.path(), file->second).second) {
    return fail(MoveFailure::alreadyExists, 17, "File exists");
  }
  sizes_.erase(source.path());
  return nullptr;
}

}  // namespace orvanta
