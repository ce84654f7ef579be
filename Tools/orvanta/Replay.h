#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <unordered_map>

#include "orvanta/Simulator/InstantPlatform.h"

namespace orvanta::tool {

/// What came of recorded payloads. Sums of several come out the same in whatever order.
struct ReplayCounts {
  std::uint64_t payloads = 0;
  std::uint64_t deliveries = 0;
  std::uint64_t plain = 0;    // nothing beside the texts was asked for
  std::uint64_t buttons = 0;  // these three may come together
  std::uint64_t media = 0;
  std::uint64_t icon = 0;
  std::uint64_t undefinedKey = 0;  // "aps" or "_ov" is no dictionary
  std::uint64_t refused = 0;       // no push object for another reason
  /// The keys that refused, as far as they are told apart.
  std::map<std::string, std::uint64_t, std::less<>> refusedBy;
  std::uint64_t badLines = 0;
  std::map<std::uint64_t, std::string> firstBadLines;  // by line number, ten at most
  /// Payloads by their size in bytes.
  std::unordered_map<std::size_t, std::uint64_t> sizes;

  void add(const ReplayCounts& other);
  /// The size that this share of the payloads does not exceed; 0 without payloads.
  std::uint64_t sizeAt(double share) const;
};

/// One line of a recording.
struct ReplayLine {
  std::uint64_t number;
  std::string place;
  std::string text;
  bool isTooLong;
};

/// Runs payloads through the shipped extension, each on a fresh instance. For one thread.
class Replay {
 public:
  void run(const ReplayLine& line);
  const ReplayCounts& counts() const { return counts_; }

 private:
  void refuse(const ReplayLine& line, const std::string& reason);

  InstantPlatform platform_;
  ReplayCounts counts_;
};

}  // namespace orvanta::tool
