#include "Conformance/Subjects.h"
#include "orvanta/Linux/MappingDownloader.h"
#include "orvanta/Simulator/SimulatedURLSession.h"

namespace orvanta::testing {
namespace {

struct Answer {
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
  Url refused = *Url::parse("file:///outside");
  void willMiss() {}
  void willRefuse() {}
  MappingDownloader downloader{files, {{"https://m.example/", folder.path().string()}}, {}, {}};
  SimulatedURLSession simulated{loop, log, files, &downloader, std::nullopt};
  NSURLSession& session() { return simulated; }
};
/// Downloads what a scenario says.
struct MemorySession : MemorySubject {
  bool exists(const Url& url) { return files.size(url).has_value(); }
  void take(const Url& url) { files.moveItemAtURL(url, files.url("taken")); }
  bool wasTaken() { return exists(files.url("taken")); }

  Url photo = *Url::parse("https://m.example/photo.jpg");
  Url missing = photo;
  Url refused = photo;
  Scenario::Media media;
  void willMiss() { media.status = 404; }
  void willRefuse() { media.fails = true; }
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
  Url refused = photo;
  void willMiss() { platform.download.response.statusCode = 404; }
  void willRefuse() { platform.download.error = NSError::errorWithDomain(kNSURLErrorDomain, -1); }
  NSURLSession& session() { return *platform.sharedSession(); }
};

template <class Subject>
class NSURLSessionConformance : public ::testing::Test {
 protected:
  void ask(const std::optional<Url>& url) {
    subject.session().downloadTaskWithURL(
        url, [this](const std::optional<Url>& location, const Ref<NSURLResponse>& response,
                    const Ref<NSError>& error) {
          answers.push_back({location, response, error, location && subject.exists(*location)});
          if (takesFile) subject.take(*location);
        });
  }
  Subject subject;
  std::vector<Answer> answers;
  bool takesFile = false;
};
using Sessions = ::testing::Types<LinuxSession, MemorySession, DoubleSession>;
TYPED_TEST_SUITE(NSURLSessionConformance, Sessions, SubjectNames);

TYPED_TEST(NSURLSessionConformance, CallsBackOncePerTaskAndAfterTheCall) {
  this->ask(this->subject.photo);
  this->ask(std::nullopt);
  EXPECT_TRUE(this->answers.empty());
  this->subject.runAll();
  this->subject.runAll();
  EXPECT_EQ(this->answers.size(), 2U);
}

TYPED_TEST(NSURLSessionConformance, AFileIsThereInTheCallbackAndGoneAfterwards) {
  this->ask(this->subject.photo);
  this->subject.runAll();
  ASSERT_EQ(this->answers.size(), 1U);
  const Answer& answer = this->answers[0];
  ASSERT_TRUE(answer.location && answer.response);
  EXPECT_FALSE(answer.error);
  EXPECT_TRUE(answer.location->isFileURL());
  EXPECT_TRUE(answer.fileIsThere);
  EXPECT_FALSE(this->subject.exists(*answer.location));
  EXPECT_EQ(answer.response->URL(), this->subject.photo);
  EXPECT_EQ(answer.response->MIMEType(), "image/jpeg");
  EXPECT_EQ(answer.response->statusCode(), 200);
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
  ASSERT_EQ(this->answers.size(), 1U);
  EXPECT_FALSE(this->answers[0].error);
  EXPECT_TRUE(this->answers[0].fileIsThere);
  EXPECT_EQ(this->answers[0].response->statusCode(), 404);
}

TYPED_TEST(NSURLSessionConformance, AFailureHasAnErrorAndNoLocation) {
  this->subject.willRefuse();
  this->ask(this->subject.refused);
  this->ask(std::nullopt);
  this->subject.runAll();
  ASSERT_EQ(this->answers.size(), 2U);
  for (const Answer& answer : this->answers) {
    EXPECT_FALSE(answer.location);
    ASSERT_TRUE(answer.error);
    EXPECT_EQ(answer.error->domain(), kNSURLErrorDomain);
  }
  const auto ofNothing = [](const Answer& a) {
    return a.error->code() == kNSURLErrorUnsupportedURL && !a.response;
  };
  EXPECT_EQ(std::count_if(this->answers.begin(), this->answers.end(), ofNothing), 1);
}

}  // namespace
}  // namespace orvanta::testing
