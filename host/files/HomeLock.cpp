#include "host/files/HomeLock.h"

#include <cerrno>
#include <chrono>
#include <cstring>
#include <memory>
#include <thread>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace vitrelle::host {

namespace {

/// Keeps the file open, and so its lock.
HomeLock lockOf(int file) {
  return {new int(file), [](const int* held) {
            close(*held);
            delete held;
          }};
}

} // namespace

Result<HomeLock> lockHome(const HomeFolder& home, double patienceSeconds) {
  using Clock = std::chrono::steady_clock;
  constexpr std::chrono::milliseconds pause(5);
  const auto end = Clock::now() + std::chrono::duration<double>(patienceSeconds);
  if (Status made = makeFolder(home.path()); !made) return made.failure();
  constexpr int flags = O_RDWR | O_CREAT | O_CLOEXEC | O_NONBLOCK;
  const int file = open(home.lockFile().c_str(), flags, 0600);
  if (file < 0) return Failure{home.lockFile(), std::strerror(errno)};
  const HomeLock lock = lockOf(file);
  struct stat status {};
  if (fstat(file, &status) != 0 || !S_ISREG(status.st_mode)) {
    return Failure{home.lockFile(), "it is no regular file"};
  }
  while (flock(file, LOCK_EX | LOCK_NB) != 0) {
    if (errno == EINTR) continue;
    if (errno != EWOULDBLOCK) return Failure{home.lockFile(), std::strerror(errno)};
    if (Clock::now() >= end) return Failure{home.path(), "another program is changing its styles"};
    std::this_thread::sleep_for(pause);
  }
  return lock;
}

} // namespace vitrelle::host
