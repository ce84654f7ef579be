#pragma once

#include <optional>

#include "orvanta/Foundation/Url.h"
#include "orvanta/Platform/NSURLSession.h"

namespace orvanta {

/// What a download ended with, as NSURLSession reports it.
struct Download {
  std::optional<Url> file{};  // in the device's downloads; the receiver removes it
  Ref<NSURLResponse> response{};
  Ref<NSError> error{};
  double seconds = 0.0;  // how long the simulated device waits for it
};

/// Fetches what the simulated device asks its network for.
///
/// The simulated session calls it once per task, on the simulation's thread, and waits: the result
/// is handed to the component when `seconds` of virtual time have passed.
class Downloader {
 public:
  virtual ~Downloader() = default;
  /// `timeLimit` is in seconds of real time; a download that takes longer ends with
  /// NSURLErrorDomain -1001.
  virtual Download download(const Url& url, double timeLimit) = 0;
};

}  // namespace orvanta
