#include <gtest/gtest.h>
#include <sys/resource.h>
#include <zlib.h>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <fstream>
#include <future>
#include <iterator>
#include <regex>
#include <set>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "orvanta/Linux/CurlTransfer.h"
#include "orvanta/Simulator/URLErrors.h"
#include "support/LoopbackServer.h"
#include "support/TemporaryFolder.h"
#include "support/Values.h"

// Transfers from well-behaved and hostile servers on loopback.

namespace orvanta::testing {
namespace {

namespace fs = std::filesystem;
using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

constexpr auto kShort = 200ms;

Url parsedUrl(const std::string& text) { return *Url::parse(text); }

std::string gzipped(std::string_view text) {
  z_stream stream{};
  deflateInit2(&stream, Z_BEST_COMPRESSION, Z_DEFLATED, MAX_WBITS + 16, 8, Z_DEFAULT_STRATEGY);
  std::string packed(deflateBound(&stream, text.size()), '\0');
  stream.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(text.data()));
  stream.avail_in = static_cast<uInt>(text.size());
  stream.next_out = reinterpret_cast<Bytef*>(packed.data());
  stream.avail_out = static_cast<uInt>(packed.size());
  deflate(&stream, Z_FINISH);
  packed.resize(stream.total_out);
  deflateEnd(&stream);
  return packed;
}

std::string okResponse(std::string_view body, std::string_view headers = "") {
  return std::string("HTTP/1.1 200 OK\r\n")
      .append(headers)
      .append("Content-Length: ")
      .append(std::to_string(body.size()))
      .append("\r\n\r\n")
      .append(body);
}

std::string redirectTo(std::string_view location) {
  return std::string("HTTP/1.1 302 Found\r\nContent-Length: 0\r\nLocation: ")
      .append(location)
      .append("\r\n\r\n");
}

class CurlTransferTest : public ::testing::Test {
 protected:
  TransferResult fetch(const std::string& url, const TransferProgress& progress = {}) {
    return transfer(parsedUrl(url), folder_, limits_, progress);
  }

  /// The error's code, 0 for none. Checks that no file is left after an error.
  std::int64_t failure(const std::string& url) { return codeOf(fetch(url)); }
  std::int64_t codeOf(const TransferResult& result) const {
    if (!result.error) return 0;
    EXPECT_EQ(result.error->domain(), "NSURLErrorDomain");
    EXPECT_FALSE(result.file);
    EXPECT_TRUE(fs::is_empty(folder_));
    return result.error->code();
  }

  /// The content of the file, or the error's description.
  static std::string bodyOf(const TransferResult& result) {
    if (!result.file) return result.error->description();
    std::ifstream in(*result.file, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
  }

  const TemporaryFolder temporary_;
  const fs::path folder_ = temporary_.path();
  TransferLimits limits_;
};

using Headers = std::vector<std::pair<std::string, std::string>>;

TEST_F(CurlTransferTest, StoresBodyInFileNamedAsThePlatformDoes) {
  const RawServer server(okResponse("picture", "Content-Type: Image/PNG; q=1\r\nx-Tag:  a \r\n"));
  const std::string url = server.url("/a%20b?c#d");
  const TransferResult result = fetch(url);
  ASSERT_TRUE(result.file) << bodyOf(result);
  EXPECT_FALSE(result.error);
  EXPECT_EQ(result.file->parent_path(), folder_);
  const std::regex name("CFNetworkDownload_[0-9A-Za-z]{6}\\.tmp");
  EXPECT_TRUE(std::regex_match(result.file->filename().string(), name)) << *result.file;
  EXPECT_EQ(bodyOf(result), "picture");
  ASSERT_TRUE(result.response);
  EXPECT_EQ(result.response->URL().absoluteString(), url);
  EXPECT_EQ(result.response->statusCode(), 200);
  EXPECT_EQ(result.response->MIMEType(), "image/png");
  EXPECT_EQ(result.response->headers(),
            (Headers{{"Content-Type", "Image/PNG; q=1"}, {"x-Tag", "a"}, {"Content-Length", "7"}}));
}

TEST_F(CurlTransferTest, NamesEachFileDifferently) {
  const RawServer server(okResponse("x"));
  std::set<fs::path> files;
  for (int i = 0; i < 5; ++i) files.insert(*fetch(server.url()).file);
  EXPECT_EQ(files.size(), 5U);
}

TEST_F(CurlTransferTest, TreatsErrorPagesAndEmptyBodiesAsSuccess) {
  HttpServer server;
  server.routes().Get("/none", [](const auto&, auto& response) { response.status = 204; });
  server.routes().Get("/broken", [](const auto&, auto& response) {
    response.status = 500;
    response.set_content("sorry", "text/html");
  });
  server.routes().set_error_handler([](const auto&, auto& response) {
    if (response.status == 404) response.set_content("no such page", "text/plain");
  });
  server.start();
  const struct {
    std::string_view path;
    int status;
    std::string_view body;
    std::optional<std::string> type;
  } rows[] = {{"/missing", 404, "no such page", "text/plain"},
              {"/broken", 500, "sorry", "text/html"},
              {"/none", 204, "", std::nullopt}};
  for (const auto& row : rows) {
    const TransferResult result = fetch(server.url(row.path));
    ASSERT_TRUE(result.file) << bodyOf(result);
    EXPECT_EQ(result.response->statusCode(), row.status);
    EXPECT_EQ(result.response->MIMEType(), row.type);
    EXPECT_EQ(bodyOf(result), row.body);
  }
}

TEST_F(CurlTransferTest, ReadsBodiesWithoutAnnouncedLength) {
  HttpServer server;
  server.routes().Get("/chunked", [](const auto&, auto& response) {
    response.set_chunked_content_provider("image/gif", [](std::size_t offset, auto& sink) {
      if (offset < 100'000) {
        const std::string piece(10'000, static_cast<char>('a' + offset / 10'000));
        return sink.write(piece.data(), piece.size());
      }
      sink.done();
      return true;
    });
  });
  server.start();
  const std::string chunked = bodyOf(fetch(server.url("/chunked")));
  EXPECT_EQ(chunked.size(), 100'000U);
  EXPECT_TRUE(std::is_sorted(chunked.begin(), chunked.end()));

  const RawServer closing("HTTP/1.0 200 OK\r\n\r\nuntil it closes");
  const TransferResult result = fetch(closing.url());
  EXPECT_EQ(bodyOf(result), "until it closes");
  EXPECT_FALSE(result.response->MIMEType());
}

TEST_F(CurlTransferTest, SendsNeitherCredentialsNorCookies) {
  ::setenv("http_proxy", ("http://127.0.0.1:" + std::to_string(unusedPort())).c_str(), 1);
  std::string head;
  {
    const RawServer server([&](RawConnection& connection) {
      head = connection.readHead();
      connection.send(okResponse("x", "Set-Cookie: a=b\r\n"));
    });
    std::string url = server.url("/p?q");
    EXPECT_EQ(bodyOf(fetch(url.insert(7, "user:secret@"))), "x");
  }
  ::unsetenv("http_proxy");
  EXPECT_TRUE(head.starts_with("GET /p?q HTTP/1.1\r\n")) << head;
  EXPECT_NE(head.find("Accept-Encoding: gzip, deflate\r\n"), std::string::npos) << head;
  EXPECT_EQ(head.find("Authorization"), std::string::npos) << head;
  EXPECT_EQ(head.find("Cookie"), std::string::npos) << head;
}

TEST_F(CurlTransferTest, StreamsToTheFileAndReportsProgress) {
  constexpr std::uint64_t kSize = 3'000'000;
  const std::string response = okResponse(std::string(kSize, 'x'));
  std::promise<void> begun;
  const RawServer server([&](RawConnection& connection) {
    connection.readHead();
    connection.send(response.substr(0, 1'000'000));
    begun.get_future().wait();
    connection.send(response.substr(1'000'000));
  });
  std::vector<std::uint64_t> reports;
  const TransferResult result =
      fetch(server.url(), [&](std::uint64_t received, std::uint64_t expected) {
        EXPECT_EQ(expected, kSize);
        EXPECT_EQ(fs::file_size(fs::directory_iterator(folder_)->path()), received);
        if (reports.empty()) begun.set_value();
        reports.push_back(received);
      });
  EXPECT_EQ(fs::file_size(*result.file), kSize);
  ASSERT_GT(reports.size(), 1U);
  EXPECT_EQ(reports.back(), kSize);
  EXPECT_TRUE(std::is_sorted(reports.begin(), reports.end()));
}

TEST_F(CurlTransferTest, PropagatesExceptionsFromProgress) {
  const RawServer server(okResponse("x"));
  const auto stop = [](std::uint64_t, std::uint64_t) { throw std::runtime_error("stop"); };
  EXPECT_THROW(fetch(server.url(), stop), std::runtime_error);
  EXPECT_TRUE(fs::is_empty(folder_));
}

TEST_F(CurlTransferTest, DecodesCompressedBodies) {
  const std::string text(300'000, 'z');
  HttpServer server;
  server.routes().Get("/gzip", [&](const auto&, auto& response) {
    response.set_content(gzipped(text), "image/png");
    response.set_header("Content-Encoding", "gzip");
  });
  server.start();
  std::uint64_t announced = 1;
  const auto result =
      fetch(server.url("/gzip"), [&](auto, auto expected) { announced = expected; });
  EXPECT_EQ(bodyOf(result), text);
  EXPECT_EQ(announced, 0U);  // the compressed size would be misleading
}

TEST_F(CurlTransferTest, RejectsUnsupportedCodings) {
  const struct {
    std::string_view coding;
    std::int64_t code;
  } rows[] = {{"gzip", -1015},
              {"br", -1016},
              {"gzip, zstd", -1016},
              {"snappy", -1016},
              {"gzip\r\ncontent-encoding: br", -1016}};
  for (const auto& row : rows) {
    const auto header = std::string("Content-Encoding: ").append(row.coding).append("\r\n");
    const RawServer server(okResponse("not packed at all", header));
    EXPECT_EQ(failure(server.url()), row.code) << row.coding;
  }
}

TEST_F(CurlTransferTest, EnforcesByteLimit) {
  limits_.bytes = 1000;
  const struct {
    std::string name;
    std::string response;
    std::int64_t code;
  } rows[] = {
      {"at the limit", okResponse(std::string(1000, 'x')), 0},
      {"announced", "HTTP/1.1 200 OK\r\nContent-Length: 99999999999\r\n\r\nx", -1103},
      {"not announced", "HTTP/1.1 200 OK\r\n\r\n" + std::string(1001, 'x'), -1103},
      {"bomb", okResponse(gzipped(std::string(5'000'000, 'x')), "Content-Encoding: gzip\r\n"),
       -1103},
      {"over the limit only when decoded",
       okResponse(gzipped(std::string(1001, 'x')), "Content-Encoding: gzip\r\n"), -1103},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.name);
    const RawServer server(row.response);
    const TransferResult result = fetch(server.url());
    EXPECT_EQ(codeOf(result), row.code);
    ASSERT_TRUE(result.response);  // its headers were complete
    EXPECT_EQ(result.response->statusCode(), 200);
    if (result.file) fs::remove(*result.file);
  }
}

TEST_F(CurlTransferTest, FailsWithTheConnection) {
  EXPECT_EQ(failure("http://127.0.0.1:" + std::to_string(unusedPort())), -1004);
  EXPECT_EQ(failure("http://" + std::string(64, 'a')), -1003);  // too long to be looked up

  const RawServer reset([](RawConnection& connection) {
    connection.readHead();
    connection.send("HTTP/1.1 200 OK\r\nContent-Length: 10\r\n\r\nhalf");
    connection.reset();
  });
  EXPECT_EQ(failure(reset.url()), -1005);
  const RawServer silent("");
  EXPECT_EQ(failure(silent.url()), -1005);
  const RawServer truncated("HTTP/1.1 200 OK\r\nContent-Length: 10\r\n\r\nhalf");
  const TransferResult result = fetch(truncated.url());
  EXPECT_EQ(codeOf(result), -1005);
  EXPECT_TRUE(result.response);
  const RawServer chunks("HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n5\r\nhel");
  EXPECT_EQ(failure(chunks.url()), -1005);
  const RawServer header("HTTP/1.1 200 OK\r\nContent-Le");
  EXPECT_NE(failure(header.url()), 0);
}

TEST_F(CurlTransferTest, TimesOutOnSilence) {
  limits_.idle = kShort;
  for (const std::string_view beginning :
       {"", "HTTP/1.1 2", "HTTP/1.1 200 OK\r\nA: b\r\n",
        "HTTP/1.1 200 OK\r\nContent-Length: 10\r\n\r\n",
        "HTTP/1.1 200 OK\r\nContent-Length: 10\r\n\r\nhalf",
        "HTTP/1.1 302 Found\r\nLocation: /\r\nContent-Length: 10\r\n\r\n"}) {
    SCOPED_TRACE(beginning);
    const RawServer server([&](RawConnection& connection) {
      connection.readHead();
      connection.send(beginning);
      connection.hold();
    });
    const auto begin = Clock::now();
    EXPECT_EQ(failure(server.url()), -1001);
    EXPECT_GE(Clock::now() - begin, kShort);
  }
  const RawServer handshake([](RawConnection& connection) { connection.hold(); });
  EXPECT_EQ(failure(handshake.url().insert(4, "s")), -1001);
}

TEST_F(CurlTransferTest, KeepsWaitingWhileBytesArrive) {
  limits_.idle = 400ms;
  const RawServer server([](RawConnection& connection) {
    connection.readHead();
    // Slower than the limit as a whole: inside of lines, between them and in the body.
    for (const std::string_view part :
         {"HT", "TP/1.1 2", "00 OK\r\n", "Content-", "Length: 3\r\n\r", "\na", "bc"}) {
      if (!connection.send(part) || !connection.pause(90ms)) return;
    }
  });
  EXPECT_EQ(bodyOf(fetch(server.url())), "abc");
}

TEST_F(CurlTransferTest, EnforcesTotalTimeWhileBytesArrive) {
  limits_.total = kShort;
  const RawServer server([](RawConnection& connection) {
    connection.readHead();
    connection.send("HTTP/1.1 200 OK\r\n\r\n");
    while (connection.send("x") && connection.pause(5ms)) {
    }
  });
  EXPECT_EQ(failure(server.url()), -1001);
}

TEST_F(CurlTransferTest, RejectsInvalidResponses) {
  const std::string_view rows[] = {
      "SSH-2.0-server\r\n\r\n",
      "HTTP/1.1 okay\r\n\r\nx",
      "HTTP/7.3 200 OK\r\n\r\nx",
      "HTTP/1.1 101 Switching Protocols\r\nUpgrade: x\r\nConnection: upgrade\r\n\r\nx",
      "HTTP/1.1 200 OK\r\nContent-Length: -1\r\n\r\nx",
      "HTTP/1.1 200 OK\r\nContent-Length: many\r\n\r\nx",
      "HTTP/1.1 200 OK\r\nno colon\r\n\r\nx",
      std::string_view("HTTP/1.1 200 OK\r\nA: \0\r\n\r\nx", 26),
  };
  for (const std::string_view response : rows) {
    const RawServer server{std::string(response)};
    EXPECT_EQ(failure(server.url()), -1011) << response;
  }
}

TEST_F(CurlTransferTest, RejectsEndlessHeaders) {
  for (const std::string_view again :
       {"A: b\r\n", "x", "\r\nHTTP/1.1 100 Continue\r\n", " folded\r\n"}) {
    const RawServer server([&](RawConnection& connection) {
      connection.readHead();
      std::string piece = "HTTP/1.1 200 OK\r\nA: ";
      if (again.starts_with("\r\n")) piece = "HTTP/1.1 100 Continue\r\n";
      while (connection.send(piece)) {
        if (piece.size() > 4096) continue;
        piece.clear();
        while (piece.size() <= 4096) piece += again;
      }
    });
    EXPECT_EQ(failure(server.url()), -1011) << again;
  }
  const RawServer trailers("HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n1\r\nx\r\n0\r\n" +
                           [] {
                             std::string lines;
                             for (int i = 0; i < 1000; ++i) lines += "A: b\r\n";
                             return lines;
                           }());
  EXPECT_EQ(failure(trailers.url()), -1011);
}

TEST_F(CurlTransferTest, ReportsFinalHeadersWithoutUnprintableBytes) {
  const RawServer server(
      "HTTP/1.1 103 Early Hints\r\nLink: </a>\r\n\r\n"
      "HTTP/1.1 200 OK\r\nX-b: \xC3\xA9 \x1B[31m\x01 \xFF\xC3\r\nvia: one\r\nx-A: "
      "\xC2\x85\xED\xA0\x80\r\n"
      "Via: two\r\nEmpty:\r\nX-\x07\xFE: 1\r\nEMPTY: not\r\nTransfer-Encoding: chunked\r\n\r\n"
      "1\r\nx\r\n0\r\nTrailer: t\r\nHTTP/1.1: 500\r\n\r\n");
  const TransferResult result = fetch(server.url());
  ASSERT_TRUE(result.response) << bodyOf(result);
  EXPECT_EQ(bodyOf(result), "x");
  EXPECT_EQ(result.response->headers(), (Headers{{"X-b", "\xC3\xA9 ?[31m? ??"},
                                                 {"via", "one, two"},
                                                 {"x-A", "?????"},
                                                 {"Empty", ", not"},
                                                 {"X-??", "1"},
                                                 {"Transfer-Encoding", "chunked"}}));
}

TEST_F(CurlTransferTest, FollowsRedirects) {
  const RawServer elsewhere(okResponse("there"));
  HttpServer server;
  server.routes().Get(R"(/hop/(\d+))", [](const auto& request, auto& response) {
    const int left = std::stoi(request.matches[1]);
    if (left == 0) return response.set_content("arrived", "text/plain");
    response.set_content("moved", "text/html");
    response.status = left % 2 == 0 ? 301 : 308;
    response.set_header("Location", "../hop/" + std::to_string(left - 1));
  });
  server.routes().Get("/loop", [](const auto&, auto& response) { response.set_redirect("/loop"); });
  server.routes().Get("/away", [&](const auto&, auto& response) {
    response.set_redirect(elsewhere.url("/a b|\xC3\xA9"));
  });
  server.routes().Get("/nowhere", [](const auto&, auto& response) { response.status = 302; });
  server.start();

  const TransferResult result = fetch(server.url("/hop/20"));
  EXPECT_EQ(bodyOf(result), "arrived");
  EXPECT_EQ(result.response->URL().absoluteString(), server.url("/hop/0"));
  EXPECT_EQ(result.response->MIMEType(), "text/plain");
  fs::remove(*result.file);
  EXPECT_EQ(failure(server.url("/hop/21")), -1007);
  EXPECT_EQ(failure(server.url("/loop")), -1007);

  const TransferResult away = fetch(server.url("/away"));
  EXPECT_EQ(bodyOf(away), "there");
  EXPECT_EQ(away.response->URL().absoluteString(), elsewhere.url("/a%20b%7C%C3%A9"));
  EXPECT_EQ(fetch(server.url("/nowhere")).response->statusCode(), 302);
}

TEST_F(CurlTransferTest, RejectsRedirectsToOtherSchemes) {
  for (const std::string_view target :
       {"file:///etc/passwd", "FILE:///etc/passwd", "ftp://127.0.0.1/x", "data:text/plain,x",
        "gopher://127.0.0.1/", "http://[", "http:///x", "http:x", "//", "///x", "https:", "%zz"}) {
    const RawServer server(redirectTo(target));
    const TransferResult result = fetch(server.url());
    EXPECT_EQ(codeOf(result), -1002) << target;
    EXPECT_FALSE(result.response);
    EXPECT_EQ(server.connections(), 1);
  }
  const RawServer server(redirectTo("file:///a"));
  EXPECT_EQ(fetch(server.url()).error->userInfo()["NSErrorFailingURLStringKey"], "file:///a");
}

TEST_F(CurlTransferTest, DropsEndlessBodyOfRedirect) {
  const RawServer target(okResponse("there"));
  const RawServer server([&](RawConnection& connection) {
    connection.readHead();
    connection.send("HTTP/1.1 307 Moved\r\nLocation: " + target.url() + "\r\n\r\n");
    while (connection.send("more")) {
    }
  });
  EXPECT_EQ(bodyOf(fetch(server.url())), "there");
}

TEST_F(CurlTransferTest, RejectsOtherUrls) {
  for (const std::string url :
       {"", "x", "/etc/passwd", "file:///etc/passwd", "ftp://127.0.0.1/", "http%3A%2F%2Fwww",
        "http://", "http:///127.0.0.1/", "http:127.0.0.1", "http://127.0.0.1:99999/"}) {
    EXPECT_EQ(failure(url), -1002) << url;
  }
}

TEST_F(CurlTransferTest, ChecksCertificates) {
  const SelfSignedServer server;
  EXPECT_EQ(failure(server.url("/")), -1202);
  const RawServer noTLS([](RawConnection& connection) {
    connection.send("HTTP/1.1 400 Bad Request\r\n\r\n");
    connection.hold();
  });
  EXPECT_EQ(failure(noTLS.url().insert(4, "s")), -1200);
}

TEST_F(CurlTransferTest, FailsWhenTheFileCannotBeWritten) {
  const RawServer server(okResponse("x"));
  const auto result = transfer(parsedUrl(server.url()), folder_ / "missing", limits_);
  EXPECT_EQ(codeOf(result), -3000);
  EXPECT_TRUE(result.response);

  const RawServer large(okResponse(std::string(100'000, 'x')));
  rlimit before{};
  ASSERT_EQ(::getrlimit(RLIMIT_FSIZE, &before), 0);
  const rlimit small{50'000, before.rlim_max};
  const auto handler = std::signal(SIGXFSZ, SIG_IGN);
  ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &small), 0);
  const TransferResult cut = fetch(large.url());
  ::setrlimit(RLIMIT_FSIZE, &before);
  std::signal(SIGXFSZ, handler);
  EXPECT_EQ(codeOf(cut), -3003);
}

TEST(UrlError, CarriesThePlatformsMessage) {
  EXPECT_EQ(urlError(-1001, parsedUrl("http://a/b"))->description(),
            "Error Domain=NSURLErrorDomain Code=-1001 \"The request timed out.\" UserInfo={"
            "NSLocalizedDescription=The request timed out., NSErrorFailingURLStringKey=http://a/b, "
            "NSErrorFailingURLKey=http://a/b}");
  EXPECT_EQ(urlError(-3000, std::nullopt)->description(),
            "Error Domain=NSURLErrorDomain Code=-3000 \"The operation couldn’t be completed. "
            "(NSURLErrorDomain error -3000.)\" UserInfo={NSLocalizedDescription=The operation "
            "couldn’t be completed. (NSURLErrorDomain error -3000.)}");
}

}  // namespace
}  // namespace orvanta::testing
