#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "Workloads.h"
#include "orvanta/Foundation/Value.h"

namespace orvanta::benchmarks {

/// One thing that is measured. Operations of one workload do the same work.
struct Operation {
  std::string_view workload;
  /// Does it once; false when it failed.
  std::function<bool()> run;
  /// What came of it, as a value that is equal for all contenders; nothing when there is nobody to
  /// compare with.
  std::function<Value()> result;
};

/// One library, this project or a peer.
struct Contender {
  std::string_view name;
  std::function<std::vector<Operation>(const Workloads&)> operations;
};

/// Those that the program was built with.
inline std::vector<Contender>& contenders() {
  static std::vector<Contender> all;
  return all;
}

struct Registration {
  explicit Registration(Contender contender) { contenders().push_back(std::move(contender)); }
};

}  // namespace orvanta::benchmarks
