#include "support/LoopbackServer.h"

#include <arpa/inet.h>
#include <netinet/in.h>
#include <openssl/evp.h>
#include <openssl/x509.h>
#include <poll.h>
#include <sys/socket.h>

#include <array>
#include <memory>
#include <stdexcept>
#include <tuple>
#include <utility>

namespace orvanta::testing {

namespace {

std::string urlOf(std::string_view scheme, int port, std::string_view path) {
  return std::string(scheme).append("://127.0.0.1:").append(std::to_string(port)).append(path);
}

/// Returns a socket bound to a free port, and the port.
std::pair<FileDescriptor, int> boundSocket() {
  FileDescriptor socket(::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0));
  sockaddr_in address{};
  address.sin_family = AF_INET;
  address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  socklen_t size = sizeof address;
  auto* generic = reinterpret_cast<sockaddr*>(&address);
  if (::bind(socket.get(), generic, size) != 0 ||
      ::getsockname(socket.get(), generic, &size) != 0) {
    throw std::runtime_error("no free port");
  }
  return {std::move(socket), ntohs(address.sin_port)};
}

// Stopping a server that is not running yet has no effect.
void awaitRunning(const httplib::Server& server) {
  while (!server.is_running()) std::this_thread::yield();
}

}  // namespace

void HttpServer::start() {
  server_.set_tcp_nodelay(true);
  port_ = server_.bind_to_any_port("127.0.0.1");
  thread_ = std::thread([this] { server_.listen_after_bind(); });
  awaitRunning(server_);
}

HttpServer::~HttpServer() {
  server_.stop();
  if (thread_.joinable()) thread_.join();
}

std::string HttpServer::url(std::string_view path) const { return urlOf("http", port_, path); }

SelfSignedServer::SelfSignedServer() {
  const std::unique_ptr<EVP_PKEY, decltype(&EVP_PKEY_free)> key(EVP_EC_gen("P-256"),
                                                                &EVP_PKEY_free);
  const std::unique_ptr<X509, decltype(&X509_free)> certificate(X509_new(), &X509_free);
  X509_gmtime_adj(X509_getm_notBefore(certificate.get()), -3600);
  X509_gmtime_adj(X509_getm_notAfter(certificate.get()), 3600);
  X509_set_pubkey(certificate.get(), key.get());
  X509_NAME* name = X509_get_subject_name(certificate.get());
  constexpr std::array<unsigned char, 10> kHost{"127.0.0.1"};
  X509_NAME_add_entry_by_txt(name, "CN", MBSTRING_ASC, kHost.data(), -1, -1, 0);
  X509_set_issuer_name(certificate.get(), name);
  X509_sign(certificate.get(), key.get(), EVP_sha256());

  server_ = std::make_unique<httplib::SSLServer>(certificate.get(), key.get());
  port_ = server_->bind_to_any_port("127.0.0.1");
  thread_ = std::thread([this] { server_->listen_after_bind(); });
  awaitRunning(*server_);
}

SelfSignedServer::~SelfSignedServer() {
  server_->stop();
  thread_.join();
}

std::string SelfSignedServer::url(std::string_view path) const {
  return urlOf("https", port_, path);
}

std::string RawConnection::readHead() const {
  std::string head;
  char byte = 0;
  while (!head.ends_with("\r\n\r\n")) {
    if (::recv(socket_.get(), &byte, 1, 0) != 1) return {};
    head += byte;
  }
  return head;
}

bool RawConnection::send(std::string_view bytes) const {
  while (!bytes.empty()) {
    const ssize_t sent = ::send(socket_.get(), bytes.data(), bytes.size(), MSG_NOSIGNAL);
    if (sent <= 0) return false;
    bytes.remove_prefix(static_cast<std::size_t>(sent));
  }
  return true;
}

bool RawConnection::pause(std::chrono::milliseconds time) const {
  pollfd waiting{socket_.get(), POLLIN, 0};
  return ::poll(&waiting, 1, static_cast<int>(time.count())) == 0;
}

void RawConnection::hold() const {
  std::array<char, 512> ignored{};
  while (::recv(socket_.get(), ignored.data(), ignored.size(), 0) > 0) {
  }
}

void RawConnection::reset() {
  const linger hard{1, 0};
  ::setsockopt(socket_.get(), SOL_SOCKET, SO_LINGER, &hard, sizeof hard);
  socket_.close();
}

RawServer::RawServer(Serve serve) : serve_(std::move(serve)) {
  std::tie(socket_, port_) = boundSocket();
  ::listen(socket_.get(), 16);
  thread_ = std::thread([this] {
    while (true) {
      FileDescriptor accepted(::accept4(socket_.get(), nullptr, nullptr, SOCK_CLOEXEC));
      if (!accepted.isOpen()) return;
      ++connections_;
      RawConnection connection(std::move(accepted));
      serve_(connection);
    }
  });
}

RawServer::RawServer(std::string response)
    : RawServer([response = std::move(response)](RawConnection& connection) {
        if (!connection.readHead().empty()) connection.send(response);
      }) {}

RawServer::~RawServer() {
  ::shutdown(socket_.get(), SHUT_RDWR);  // ends the accept
  thread_.join();
}

std::string RawServer::url(std::string_view path) const { return urlOf("http", port_, path); }

int unusedPort() { return boundSocket().second; }

}  // namespace orvanta::testing
