#include "host/desktop/AppInstance.h"

#include <array>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <utility>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

namespace vitrelle::host {

namespace {

constexpr timeval patience{.tv_sec = 5, .tv_usec = 0};

Failure failure(const HomeFolder& home) {
  return {home.path(), std::strerror(errno)};
}

/// By way of the opened folder, since the path of a socket must be short.
sockaddr_un addressIn(const Descriptor& folder) {
  sockaddr_un address{};
  address.sun_family = AF_UNIX;
  std::snprintf(address.sun_path, sizeof address.sun_path, "/proc/self/fd/%d/app.socket",
                folder.get());
  return address;
}

const sockaddr* plain(const sockaddr_un& address) {
  return reinterpret_cast<const sockaddr*>(&address);
}

int openFolder(const HomeFolder& home) {
  return open(home.path().c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC);
}

bool isOwnUser(int connection) {
  ucred peer{};
  socklen_t size = sizeof peer;
  return getsockopt(connection, SOL_SOCKET, SO_PEERCRED, &peer, &size) == 0 &&
         (peer.uid == geteuid() || peer.uid == 0);
}

Result<bool> send(const HomeFolder& home, const std::string& url) {
  if (url.size() > longestLink) return Failure{"the link", "it is too long"};
  const Descriptor folder(openFolder(home));
  if (folder.get() < 0) return false;
  const Descriptor connection(socket(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC, 0));
  if (connection.get() < 0) return failure(home);
  setsockopt(connection.get(), SOL_SOCKET, SO_RCVTIMEO, &patience, sizeof patience);
  setsockopt(connection.get(), SOL_SOCKET, SO_SNDTIMEO, &patience, sizeof patience);
  const sockaddr_un address = addressIn(folder);
  if (connect(connection.get(), plain(address), sizeof address) != 0) {
    if (errno == ENOENT || errno == ECONNREFUSED) return false;
    return failure(home);
  }
  // A line break behind it, for an empty message could not be told from the end.
  const std::string message = url + "\n";
  char answer = 0;
  if (::send(connection.get(), message.data(), message.size(), MSG_NOSIGNAL) < 0 ||
      recv(connection.get(), &answer, 1, 0) != 1) {
    return Failure{"the application", "it does not answer"};
  }
  return true;
}

} // namespace

Result<std::unique_ptr<AppInstance>> AppInstance::claim(const HomeFolder& home,
                                                        const EventLoop& loop) {
  if (const Status made = makeFolder(home.path()); !made) return made.failure();
  const Descriptor folder(openFolder(home));
  Descriptor lock(openat(folder.get(), "app.lock", O_RDWR | O_CREAT | O_CLOEXEC, 0600));
  if (lock.get() < 0) return failure(home);
  if (flock(lock.get(), LOCK_EX | LOCK_NB) != 0) return std::unique_ptr<AppInstance>();

  Descriptor listener(socket(AF_UNIX, SOCK_SEQPACKET | SOCK_NONBLOCK | SOCK_CLOEXEC, 0));
  // Whoever held the lock before is gone, and its socket with it.
  unlinkat(folder.get(), "app.socket", 0);
  const sockaddr_un address = addressIn(folder);
  const mode_t before = umask(0177);
  const bool bound = bind(listener.get(), plain(address), sizeof address) == 0;
  umask(before);
  if (!bound || listen(listener.get(), 8) != 0) return failure(home);
  return std::unique_ptr<AppInstance>(new AppInstance(std::move(lock), std::move(listener), loop));
}

AppInstance::AppInstance(Descriptor lock, Descriptor socket, const EventLoop& loop)
    : lock_(std::move(lock)),
      socket_(std::move(socket)),
      readable_(loop.whenReadable(socket_.get(), [this] { accept(); })) {}

AppInstance::~AppInstance() = default;

void AppInstance::accept() {
  const Descriptor connection(accept4(socket_.get(), nullptr, nullptr, SOCK_CLOEXEC));
  if (connection.get() < 0 || !isOwnUser(connection.get())) return;
  // A sender writes at once; one that does not may not hold up the window.
  constexpr timeval moment{.tv_sec = 0, .tv_usec = 200'000};
  setsockopt(connection.get(), SOL_SOCKET, SO_RCVTIMEO, &moment, sizeof moment);
  std::string message(longestLink + 1, '\0');
  const ssize_t size = recv(connection.get(), message.data(), message.size(), 0);
  if (size < 1 || message[static_cast<std::size_t>(size) - 1] != '\n') return;
  message.resize(static_cast<std::size_t>(size) - 1);
  ::send(connection.get(), "+", 1, MSG_NOSIGNAL | MSG_DONTWAIT);
  if (handler_) handler_(message);
}

Links makeLinks(const HomeFolder& home) {
  return {.send = [home](const std::string& url) { return host::send(home, url); }};
}

} // namespace vitrelle::host
