#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "Workloads.h"
#include "orvanta/Foundation/Value.h"

namespace orvanta::benchmarks {

/// One operation to measure. Operations of the same workload do the same work.
struct Operation {
  std::string_view workload;
  /// Runs once; returns false on failure.
  std::function<bool()> run;
  /// Returns the result as a value that must be equal for all implementations; empty if there is no
  /// other implementation.
  std::function<Value()> result;
};

/// A library under test: this project or a peer.
struct Implementation {
  std::string_view name;
  std::function<std::vector<Operation>(const Workloads&)> operations;
};

/// The implementations that the program was built with.
inline std::vector<Implementation>& implementations() {
  static std::vector<Implementation> all;
  return all;
}

struct Registration {
  explicit Registration(Implementation implementation) {
    implementations().push_back(std::move(implementation));
  }
};

}  // namespace orvanta::benchmarks
