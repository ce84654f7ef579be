#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <concepts>
#include <optional>
#include <vector>

#include "orvanta/Conformance/Subject.h"
#include "orvanta/Platform/NSURLSession.h"

namespace orvanta::conformance {

/// A subject of NSURLSessionConformance.
///
/// Each of these returns a URL to download, and sets up what it leads to:
/// - `photo()`: a file of the type image/jpeg, with status 200;
/// - `missing()`: a complete response with status 404;
/// - `failing()`: a download that fails.
///
/// A test calls one of them, once, before the first `service()`. The files of downloads:
/// - `exists(url)` returns whether there is a file at the URL;
/// - `take(url)` moves the file to a place of the subject's;
/// - `wasTaken()` returns whether that file is still there, unchanged.
template <class Subject>
concept NSURLSessionSubject = QueueSubjectOf<Subject, NSURLSession> &&
    requires(Subject subject, const Url& url) {
  { subject.photo() } -> std::convertible_to<Url>;
  { subject.missing() } -> std::convertible_to<Url>;
  { subject.failing() } -> std::convertible_to<Url>;
  { subject.exists(url) } -> std::convertible_to<bool>;
  subject.take(url);
  { subject.wasTaken() } -> std::convertible_to<bool>;
};

/// Checks what NSURLSession promises:
///
///     struct SessionSubject {
///       Url photo() { return server.url("/photo.jpg"); }
///       Url missing() { return server.url("/missing.jpg"); }
///       Url failing() { return *Url::parse("https://host.invalid/"); }
///       bool exists(const Url& url) { return folder.contains(url); }
///       void take(const Url& url) { folder.rename(url, "taken"); }
///       bool wasTaken() { return folder.read("taken") == "pixels"; }
///       NSURLSession& service() { return session; }
///       void runAll() { queue.drain(); }
///       TestServer server{{"/photo.jpg", "pixels"}};
///       TestFolder folder;
///       MyQueue queue;
///       MySession session{queue, folder.path()};
///     };
///     INSTANTIATE_TYPED_TEST_SUITE_P(MyPort, NSURLSessionConformance, SessionSubject);
template <class Subject>
class NSURLSessionConformance : public ::testing::Test {
  static_assert(NSURLSessionSubject<Subject>);

 protected:
  struct Result {
    std::optional<Url> location;
    Ref<NSURLResponse> response;
    Ref<NSError> error;
    bool fileExists = false;  // in the callback
  };

  void download(const std::optional<Url>& url) {
    NSURLSession& session = subject.service();
    session.downloadTaskWithURL(
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
TYPED_TEST_SUITE_P(NSURLSessionConformance);

TYPED_TEST_P(NSURLSessionConformance, CallsBackOncePerTaskAndAfterTheCall) {
  this->download(this->subject.photo());
  this->download(std::nullopt);
  EXPECT_TRUE(this->results.empty());
  this->subject.runAll();
  this->subject.runAll();
  EXPECT_EQ(this->results.size(), 2U);
}

TYPED_TEST_P(NSURLSessionConformance, AFileIsThereInTheCallbackAndGoneAfterwards) {
  const Url photo = this->subject.photo();
  this->download(photo);
  this->subject.runAll();
  ASSERT_EQ(this->results.size(), 1U);
  const auto& result = this->results[0];
  ASSERT_TRUE(result.location && result.response);
  EXPECT_FALSE(result.error);
  EXPECT_TRUE(result.location->isFileURL());
  EXPECT_TRUE(result.fileExists);
  EXPECT_FALSE(this->subject.exists(*result.location));
  EXPECT_EQ(result.response->URL(), photo);
  EXPECT_EQ(result.response->MIMEType(), "image/jpeg");
  EXPECT_EQ(result.response->statusCode(), 200);
}

TYPED_TEST_P(NSURLSessionConformance, AFileThatIsMovedAwayStays) {
  this->takesFile = true;
  this->download(this->subject.photo());
  this->subject.runAll();
  EXPECT_TRUE(this->subject.wasTaken());
}

TYPED_TEST_P(NSURLSessionConformance, AnHTTPErrorStatusIsASuccess) {
  this->download(this->subject.missing());
  this->subject.runAll();
  ASSERT_EQ(this->results.size(), 1U);
  EXPECT_FALSE(this->results[0].error);
  EXPECT_TRUE(this->results[0].fileExists);
  ASSERT_TRUE(this->results[0].response);
  EXPECT_EQ(this->results[0].response->statusCode(), 404);
}

TYPED_TEST_P(NSURLSessionConformance, AFailureHasAnErrorAndNoLocation) {
  this->download(this->subject.failing());
  this->download(std::nullopt);
  this->subject.runAll();
  ASSERT_EQ(this->results.size(), 2U);
  for (const auto& result : this->results) {
    EXPECT_FALSE(result.location);
    ASSERT_TRUE(result.error);
    EXPECT_EQ(result.error->domain(), kNSURLErrorDomain);
  }
  const auto isOfMissingURL = [](const auto& result) {
    return result.error->code() == kNSURLErrorUnsupportedURL && !result.response;
  };
  EXPECT_EQ(std::count_if(this->results.begin(), this->results.end(), isOfMissingURL), 1);
}

REGISTER_TYPED_TEST_SUITE_P(NSURLSessionConformance, CallsBackOncePerTaskAndAfterTheCall,
                            AFileIsThereInTheCallbackAndGoneAfterwards, AFileThatIsMovedAwayStays,
                            AnHTTPErrorStatusIsASuccess, AFailureHasAnErrorAndNoLocation);

}  // namespace orvanta::conformance
