#include "Conformance/Subjects.h"
#include "orvanta/Linux/MappingDownloader.h"
#include "orvanta/Simulator/SimulatedURLSession.h"

namespace orvanta::testing {
namespace {

struct Result {
  std::optional<Url> location;
  Ref<NSURLResponse> response;
  Ref<NSError> error;
  bool fileIsThere = false;
};

struct LinuxSession : LinuxSubject {
  LinuxSession() { folder.write("photo.jpg", "pixels"); }
  bool exists(const Url& url) const { return std::filesystem::exists(url.path()); }
  void take(const Url& url) { std::filesystem::rename(url.path(), folder / "taken"); }
  bool wasTaken() const { return folder.read("taken") == "pixels"; }

  Url photo = *Url::parse("https://m.example/photo.jpg");
  Url missing = *Url::parse("https://m.example/missing.jpg");
  Url failing = *Url::parse("file:///outside");
  void willMiss() {}
  void willFail() {}
  MappingDownloader downloader{files, {{"https://m.example/", folder.path().string()}}, {}, {}};
  SimulatedURLSession simulated{loop, log, files, &downloader, std::nullopt};
  NSURLSession& session() { return simulated; }
};
/// Downloads as a scenario describes.
struct MemorySession : MemorySubject {
  bool exists(const Url& url) { return files.size(url).has_value(); }
  void take(const Url& url) { files.moveItemAtURL(url, files.url("taken")); }
  bool wasTaken() { return exists(files.url("taken")); }

  Url photo = *Url::parse("https://m.example/photo.jpg");
  Url missing = photo;
  Url failing = photo;
  Scenario::Media media;
  void willMiss() { media.status = 404; }
  void willFail() { media.fails = true; }
  SimulatedURLSession& session() {
    if (!service_) service_.emplace(loop, log, files, nullptr, media);
    return *service_;
  }

 private:
  std::optional<SimulatedURLSession> service_;
};
struct DoubleSession : DoubleSubject {
  bool exists(const Url& url) const { return platform.files.contains(url.path()); }
  void take(const Url& url) {
    platform.defaultManager()->moveItemAtURL(url, Url::fileURLWithPath("/taken"));
  }
  bool wasTaken() const { return platform.files.contains("/taken"); }

  Url photo = *Url::parse("https://m.example/photo.jpg");
  Url missing = photo;
  Url failing = photo;
  void willMiss() { platform.download.response.statusCode = 404; }
  void willFail() { platform.download.error = NSError::errorWithDomain(kNSURLErrorDomain, -1); }
  NSURLSession& session() { return *platform.sharedSession(); }
};

template <class Subject>
class NSURLSessionConformance : public ::testing::Test {
 protected:
  void ask(const std::optional<Url>& url) {
    subject.session().downloadTaskWithURL(
        url, [this](const std::optional<Url>& location, const Ref<NSURLResponse>& response,
                    const Ref<NSError>& error) {
          results.push_back({location, response, error, location && subject.exists(*location)});
          if (takesFile) subject.take(*location);
        });
  }
  Subject subject;
  std::vector<Result> results;
  bool takesFile = false;
};
using Sessions = ::testing::Types<LinuxSession, MemorySession, DoubleSession>;
TYPED_TEST_SUITE(NSURLSessionConformance, Sessions, SubjectNames);

TYPED_TEST(NSURLSessionConformance, CallsBackOncePerTaskAndAfterTheCall) {
  this->ask(this->subject.photo);
  this->ask(std::nullopt);
  EXPECT_TRUE(this->results.empty());
  this->subject.runAll();
  this->subject.runAll();
  EXPECT_EQ(this->results.size(), 2U);
}

TYPED_TEST(NSURLSessionConformance, AFileIsThereInTheCallbackAndGoneAfterwards) {
  this->ask(this->subject.photo);
  this->subject.runAll();
  ASSERT_EQ(this->results.size(), 1U);
  const Result& result = this->results[0];
  ASSERT_TRUE(result.location && result.response);
  EXPECT_FALSE(result.error);
  EXPECT_TRUE(result.location->isFileURL());
  EXPECT_TRUE(result.fileIsThere);
  EXPECT_FALSE(this->subject.exists(*result.location));
  EXPECT_EQ(result.response->URL(), this->subject.photo);
  EXPECT_EQ(result.response->MIMEType(), "image/jpeg");
  EXPECT_EQ(result.response->statusCode(), 200);
}

TYPED_TEST(NSURLSessionConformance, AFileThatIsMovedAwayStays) {
  this->takesFile = true;
  this->ask(this->subject.photo);
  this->subject.runAll();
  EXPECT_TRUE(this->subject.wasTaken());
}

TYPED_TEST(NSURLSessionConformance, AnHTTPErrorStatusIsASuccess) {
  this->subject.willMiss();
  this->ask(this->subject.missing);
  this->subject.runAll();
  ASSERT_EQ(this->results.size(), 1U);
  EXPECT_FALSE(this->results[0].error);
  EXPECT_TRUE(this->results[0].fileIsThere);
  EXPECT_EQ(this->results[0].response->statusCode(), 404);
}

TYPED_TEST(NSURLSessionConformance, AFailureHasAnErrorAndNoLocation) {
  this->subject.willFail();
  this->ask(this->subject.failing);
  this->ask(std::nullopt);
  this->subject.runAll();
  ASSERT_EQ(this->results.size(), 2U);
  for (const Result& result : this->results) {
    EXPECT_FALSE(result.location);
    ASSERT_TRUE(result.error);
    EXPECT_EQ(result.error->domain(), kNSURLErrorDomain);
  }
  const auto ofNothing = [](const Result& a) {
    return a.error->code() == kNSURLErrorUnsupportedURL && !a.response;
  };
  EXPECT_EQ(std::count_if(this->results.begin(), this->results.end(), ofNothing), 1);
}

}  // namespace
}  // namespace orvanta::testing
