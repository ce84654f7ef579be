#include <sstream>

#include "Conformance/Subjects.h"
#include "orvanta/Conformance/ClockConformance.h"
#include "orvanta/Conformance/NSBundleConformance.h"
#include "orvanta/Conformance/SystemLogConformance.h"
#include "orvanta/Conformance/TypeIdentifiersConformance.h"
#include "orvanta/Simulator/RecordingLog.h"
#include "orvanta/Simulator/StringsFile.h"
#include "orvanta/Simulator/SystemClock.h"
#include "orvanta/Simulator/UniformTypes.h"

// The services that return at once, on any thread.

namespace orvanta::testing {
namespace {

using namespace conformance;

// ---- Clock -------------------------------------------------------------------

struct MachineClock {
  Clock& service() { return clock; }
  SystemClock clock;
};
struct DoubleClock : DoubleSubject {
  Clock& service() { return *platform.clock(); }
};
using ClockSubjects = ::testing::Types<MachineClock, DoubleClock>;
INSTANTIATE_TYPED_TEST_SUITE_P(Conformance, ClockConformance, ClockSubjects);

// ---- System log ----------------------------------------------------------------

struct StreamLog {
  SystemLog& service() { return log; }
  std::vector<std::string> entries() const { return log.entries(); }
  std::ostringstream out;
  RecordingLog log{out};
};
struct DoubleLog : DoubleSubject {
  SystemLog& service() { return *platform.systemLog(); }
  std::vector<std::string> entries() const { return platform.log; }
};
using SystemLogSubjects = ::testing::Types<StreamLog, DoubleLog>;
INSTANTIATE_TYPED_TEST_SUITE_P(Conformance, SystemLogConformance, SystemLogSubjects);

// ---- Bundle ----------------------------------------------------------------------

struct FileStrings {
  NSBundle& service() { return bundle; }
  SimulatedBundle bundle{parseStrings(kLocalizableStrings, "Localizable.strings")};
};
struct DoubleStrings : DoubleSubject {
  DoubleStrings() { platform.texts = {{"►►", "Weiter"}, {"empty", ""}, {"two words", "x\ny"}}; }
  NSBundle& service() { return *platform.mainBundle(); }
};
using NSBundleSubjects = ::testing::Types<FileStrings, DoubleStrings>;
INSTANTIATE_TYPED_TEST_SUITE_P(Conformance, NSBundleConformance, NSBundleSubjects);

// ---- Type identifiers ----------------------------------------------------------

struct SimulatedTypes {
  TypeIdentifiers& service() { return types; }
  UniformTypes types;
};
struct DoubleTypes : DoubleSubject {
  TypeIdentifiers& service() { return *platform.typeIdentifiers(); }
};
using TypeIdentifiersSubjects = ::testing::Types<SimulatedTypes, DoubleTypes>;
INSTANTIATE_TYPED_TEST_SUITE_P(Conformance, TypeIdentifiersConformance, TypeIdentifiersSubjects);

}  // namespace
}  // namespace orvanta::testing
