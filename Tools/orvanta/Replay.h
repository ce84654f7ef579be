#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <unordered_map>

#include "orvanta/Simulator/InstantPlatform.h"

namespace orvanta::tool {

/// Totals over replayed payloads. Adding is independent of the order, so each thread keeps its own.
struct ReplayCounts {
  std::uint64_t payloads = 0;
  std::uint64_t deliveries = 0;
  std::uint64_t plain = 0;    // no enrichment was asked for
  std::uint64_t buttons = 0;  // these three may come together
  std::uint64_t media = 0;
  std::uint64_t icon = 0;
  std::uint64_t undefinedKey = 0;  // "aps" or "_ov" has no keys
  std::uint64_t refused = 0;       // no push object for another reason
  /// Payloads without a push object by the key that was rejected; the number of keys is bounded.
  std::map<std::string, std::uint64_t, std::less<>> refusedBy;
  std::uint64_t badLines = 0;
  std::map<std::uint64_t, std::string> firstBadLines;  // by line number, ten at most
  /// Payloads by their size in bytes.
  std::unordered_map<std::size_t, std::uint64_t> sizes;

  void add(const ReplayCounts& other);
  /// Returns the size in bytes that this share of the payloads does not exceed, 0 without payloads.
  std::uint64_t sizeAt(double share) const;
};

/// One line of a recording; `place` is "FILE:LINE".
struct RecordedLine {
  std::uint64_t number;
  std::string place;
  std::string text;
  bool isTooLong;
};

/// Runs payloads through the shipped extension, each on a fresh instance. For one thread.
class Replay {
 public:
  void run(const RecordedLine& line);
  const ReplayCounts& counts() const { return counts_; }

 private:
  void reject(const RecordedLine& line, const std::string& reason);

  InstantPlatform platform_;
  ReplayCounts counts_;
};

}  // namespace orvanta::tool
