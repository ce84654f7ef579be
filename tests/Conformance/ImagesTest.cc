#include "Conformance/Subjects.h"
#include "orvanta/Conformance/ImagesConformance.h"
#include "orvanta/Linux/GdImages.h"

namespace orvanta::testing {
namespace {

using namespace conformance;

struct LinuxImages : LinuxSubject {
  void add(const std::string& name, const std::string& content) { folder.write(name, content); }
  Images& service() { return images; }
  GdImages images{folder.path()};
};
struct DoubleImages : DoubleSubject {
  void add(const std::string& name, const std::string& /*content*/) {
    platform.pictures.insert(name);
  }
  Images& service() { return *platform.images(); }
};
using ImagesSubjects = ::testing::Types<LinuxImages, DoubleImages>;
INSTANTIATE_TYPED_TEST_SUITE_P(Conformance, ImagesConformance, ImagesSubjects);

}  // namespace
}  // namespace orvanta::testing
