#pragma once

#include <httplib.h>

#include <atomic>
#include <chrono>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <thread>
#include <utility>

#include "orvanta/Linux/FileDescriptor.h"

namespace orvanta::testing {

/// An HTTP server on a free port of 127.0.0.1. Add routes, then call `start`.
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

/// An HTTPS server with a self-signed certificate.
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
  explicit RawConnection(FileDescriptor socket) : socket_(std::move(socket)) {}

  /// Reads the head of the next request; empty if the client has closed.
  std::string readHead() const;
  /// Returns false if the client has closed.
  bool send(std::string_view bytes) const;
  /// Waits; returns false as soon as the client closes or sends.
  bool pause(std::chrono::milliseconds time) const;
  /// Waits until the client closes.
  void hold() const;
  /// Closes with a reset.
  void reset();

 private:
  FileDescriptor socket_;
};

/// A server that may send anything, on a free port of 127.0.0.1. It serves one connection after the
/// other by calling `serve`, and closes it when that returns.
class RawServer {
 public:
  using Serve = std::function<void(RawConnection& connection)>;

  explicit RawServer(Serve serve);
  /// Reads a request and sends the bytes.
  explicit RawServer(std::string response);
  RawServer(const RawServer&) = delete;
  RawServer& operator=(const RawServer&) = delete;
  ~RawServer();

  std::string url(std::string_view path = "/") const;
  int connections() const { return connections_; }

 private:
  Serve serve_;
  FileDescriptor socket_;
  int port_ = 0;
  std::atomic<int> connections_ = 0;
  std::thread thread_;
};

/// Returns a port of 127.0.0.1 at which nobody listens.
int unusedPort();

}  // namespace orvanta::testing
