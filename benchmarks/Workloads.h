#pragma once

#include <string>
#include <vector>

#include "Models.h"

namespace orvanta::benchmarks {

/// The inputs of the benchmark, the same in every run.
struct Workloads {
  Workloads();

  std::string push;   // a payload of 3.5 KB
  std::string inbox;  // a reply with 200 messages of that shape
  Batch batch;        // 100 events
  /// Payloads of 3.4 KB that are slow to parse.
  struct Hostile {
    std::string_view name;
    std::string text;
  };
  std::vector<Hostile> hostile;
};

/// Returns a reply with that many different messages of the payload's shape.
std::string inboxOf(const std::string& push, int messages);

}  // namespace orvanta::benchmarks
