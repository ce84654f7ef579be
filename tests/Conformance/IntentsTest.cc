#include "Conformance/Subjects.h"
#include "orvanta/Conformance/IntentsConformance.h"
#include "orvanta/Simulator/SimulatedIntents.h"

namespace orvanta::testing {
namespace {

using namespace conformance;

struct MemoryIntents : MemorySubject {
  void willFail() { behavior = {.donationFails = true, .updateFails = true}; }
  Intents& service() {
    if (!intents) intents.emplace(loop, log, state, behavior);
    return *intents;
  }
  SimulatedIntents::Behavior behavior;
  std::optional<SimulatedIntents> intents;
};
struct DoubleIntents : DoubleSubject {
  void willFail() {
    platform.donationError = NSError::errorWithDomain("IntentsErrorDomain", 1900);
    platform.updateError = NSError::errorWithDomain("UNErrorDomain", 1501);
  }
  Intents& service() { return *platform.intents(); }
};
using IntentsSubjects = ::testing::Types<MemoryIntents, DoubleIntents>;
INSTANTIATE_TYPED_TEST_SUITE_P(Conformance, IntentsConformance, IntentsSubjects);

}  // namespace
}  // namespace orvanta::testing
