#pragma once

#include <httplib.h>

#include <atomic>
#include <chrono>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <thread>

namespace orvanta::testing {

/// An HTTP server on a port of its own of 127.0.0.1. Add the answers, then call `start`.
class HttpServer {
 public:
  HttpServer() = default;
  HttpServer(const HttpServer&) = delete;
  HttpServer& operator=(const HttpServer&) = delete;
  ~HttpServer();

  httplib::Server& routes() { return server_; }
  void start();
  std::string url(std::string_view path) const;

 private:
  httplib::Server server_;
  std::thread thread_;
  int port_ = 0;
};

/// The same over TLS, with a certificate that nobody signed but itself.
class SelfSignedServer {
 public:
  SelfSignedServer();
  SelfSignedServer(const SelfSignedServer&) = delete;
  SelfSignedServer& operator=(const SelfSignedServer&) = delete;
  ~SelfSignedServer();

  std::string url(std::string_view path) const;

 private:
  std::unique_ptr<httplib::SSLServer> server_;
  std::thread thread_;
  int port_ = 0;
};

/// The server's end of a connection.
class RawConnection {
 public:
  explicit RawConnection(int socket) : socket_(socket) {}
  RawConnection(const RawConnection&) = delete;
  RawConnection& operator=(const RawConnection&) = delete;
  ~RawConnection();

  /// The next request's head; empty once the client has hung up.
  std::string readHead() const;
  /// False once the client has hung up.
  bool send(std::string_view bytes) const;
  /// Waits; false as soon as the client hangs up or sends something.
  bool pause(std::chrono::milliseconds time) const;
  /// Waits until the client hangs up.
  void hold() const;
  /// Hangs up with a reset.
  void reset();

 private:
  int socket_;
};

/// A server that sends whatever a test wants, on a port of its own of 127.0.0.1. It serves one
/// connection after the other, each as `serve` says, and hangs up when that returns.
class RawServer {
 public:
  using Serve = std::function<void(RawConnection& connection)>;

  explicit RawServer(Serve serve);
  /// One that reads a request and sends the bytes.
  explicit RawServer(std::string answer);
  RawServer(const RawServer&) = delete;
  RawServer& operator=(const RawServer&) = delete;
  ~RawServer();

  std::string url(std::string_view path = "/") const;
  int connections() const { return connections_; }

 private:
  Serve serve_;
  int socket_;
  int port_ = 0;
  std::atomic<int> connections_ = 0;
  std::thread thread_;
};

/// A port of 127.0.0.1 at which nobody listens.
int unusedPort();

}  // namespace orvanta::testing
