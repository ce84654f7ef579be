#include "Conformance/Subjects.h"
#include "orvanta/Conformance/NSURLSessionConformance.h"
#include "orvanta/Linux/MappingDownloader.h"
#include "orvanta/Simulator/SimulatedURLSession.h"

namespace orvanta::testing {
namespace {

using namespace conformance;

struct LinuxSession : LinuxSubject {
  LinuxSession() { folder.write("photo.jpg", "pixels"); }
  Url photo() const { return *Url::parse("https://m.example/photo.jpg"); }
  Url missing() const { return *Url::parse("https://m.example/missing.jpg"); }
  Url failing() const { return *Url::parse("file:///outside"); }
  bool exists(const Url& url) const { return std::filesystem::exists(url.path()); }
  void take(const Url& url) { std::filesystem::rename(url.path(), folder / "taken"); }
  bool wasTaken() const { return folder.read("taken") == "pixels"; }
  NSURLSession& service() { return session; }

  MappingDownloader downloader{files, {{"https://m.example/", folder.path().string()}}, {}, {}};
  SimulatedURLSession session{loop, log, files, &downloader, std::nullopt};
};
/// Downloads as a scenario describes.
struct MemorySession : MemorySubject {
  Url photo() const { return *Url::parse("https://m.example/photo.jpg"); }
  Url missing() {
    media.status = 404;
    return photo();
  }
  Url failing() {
    media.fails = true;
    return photo();
  }
  bool exists(const Url& url) { return files.size(url).has_value(); }
  void take(const Url& url) { files.moveItemAtURL(url, files.url("taken")); }
  bool wasTaken() { return exists(files.url("taken")); }
  NSURLSession& service() {
    if (!session) session.emplace(loop, log, files, nullptr, media);
    return *session;
  }

  Scenario::Media media;
  std::optional<SimulatedURLSession> session;
};
struct DoubleSession : DoubleSubject {
  Url photo() const { return *Url::parse("https://m.example/photo.jpg"); }
  Url missing() {
    platform.download.response.statusCode = 404;
    return photo();
  }
  Url failing() {
    platform.download.error = NSError::errorWithDomain(kNSURLErrorDomain, -1);
    return photo();
  }
  bool exists(const Url& url) const { return platform.files.contains(url.path()); }
  void take(const Url& url) {
    platform.defaultManager()->moveItemAtURL(url, Url::fileURLWithPath("/taken"));
  }
  bool wasTaken() const { return platform.files.contains("/taken"); }
  NSURLSession& service() { return *platform.sharedSession(); }
};
using NSURLSessionSubjects = ::testing::Types<LinuxSession, MemorySession, DoubleSession>;
INSTANTIATE_TYPED_TEST_SUITE_P(Conformance, NSURLSessionConformance, NSURLSessionSubjects);

}  // namespace
}  // namespace orvanta::testing
