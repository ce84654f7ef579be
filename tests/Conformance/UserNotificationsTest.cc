#include "Conformance/Subjects.h"
#include "orvanta/Conformance/UNNotificationAttachmentFactoryConformance.h"
#include "orvanta/Conformance/UNUserNotificationCenterConformance.h"
#include "orvanta/Simulator/SimulatedAttachments.h"
#include "orvanta/Simulator/SimulatedNotificationCenter.h"

namespace orvanta::testing {
namespace {

using namespace conformance;

// ---- The center -------------------------------------------------------------

struct LinuxCenter : LinuxSubject {
  UNUserNotificationCenter& service() { return center; }
  SimulatedNotificationCenter center{loop, log, state, 0.0};
};
struct DoubleCenter : DoubleSubject {
  UNUserNotificationCenter& service() { return *platform.center; }
};
using UNUserNotificationCenterSubjects = ::testing::Types<LinuxCenter, DoubleCenter>;
INSTANTIATE_TYPED_TEST_SUITE_P(Conformance, UNUserNotificationCenterConformance,
                               UNUserNotificationCenterSubjects);

// ---- Attachments ------------------------------------------------------------

struct LinuxAttachments : LinuxSubject {
  Url addFile(const std::string& name, std::uint64_t bytes) {
    Url url = folder.write(name, "");
    std::filesystem::resize_file(folder / name, bytes);
    return url;
  }
  UNNotificationAttachmentFactory& service() { return attachments; }
  SimulatedAttachments attachments{files};
};
struct MemoryAttachments : MemorySubject {
  Url addFile(const std::string& name, std::uint64_t bytes) {
    return *files.makeDownload(name, bytes);
  }
  UNNotificationAttachmentFactory& service() { return attachments; }
  SimulatedAttachments attachments{files};
};
struct DoubleAttachments : DoubleSubject {
  Url addFile(const std::string& name, std::uint64_t bytes) {
    platform.files["/" + name] = bytes;
    return Url::fileURLWithPath("/" + name);
  }
  UNNotificationAttachmentFactory& service() { return *platform.attachments(); }
};
using UNNotificationAttachmentFactorySubjects =
    ::testing::Types<LinuxAttachments, MemoryAttachments, DoubleAttachments>;
INSTANTIATE_TYPED_TEST_SUITE_P(Conformance, UNNotificationAttachmentFactoryConformance,
                               UNNotificationAttachmentFactorySubjects);

}  // namespace
}  // namespace orvanta::testing
