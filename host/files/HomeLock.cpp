#include "host/files/HomeLock.h"

#include "host/files/Descriptor.h"

#include <cerrno>
#include <chrono>
#include <cstring>
#include <memory>
#include <thread>
#include <utility>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>

namespace vitrelle::host {

Result<HomeLock> lockHome(const HomeFolder& home, double patienceSeconds) {
  using Clock = std::chrono::steady_clock;
  constexpr std::chrono::milliseconds pause(5);
  const auto end = Clock::now() + std::chrono::duration<double>(patienceSeconds);
  if (Status made = makeFolder(home.path()); !made) return made.failure();
  constexpr int flags = O_RDWR | O_CREAT | O_CLOEXEC | O_NONBLOCK;
  auto lock = std::make_shared<const Descriptor>(open(home.lockFile().c_str(), flags, 0600));
  if (!*lock) return Failure{home.lockFile(), std::strerror(errno)};
  struct stat status {};
  if (fstat(lock->get(), &status) != 0 || !S_ISREG(status.st_mode)) {
    return Failure{home.lockFile(), "it is no regular file"};
  }
  while (flock(lock->get(), LOCK_EX | LOCK_NB) != 0) {
    if (errno == EINTR) continue;
    if (errno != EWOULDBLOCK) return Failure{home.lockFile(), std::strerror(errno)};
    if (Clock::now() >= end) return Failure{home.path(), "another program is changing its styles"};
    std::this_thread::sleep_for(pause);
  }
  return HomeLock(std::move(lock));
}

} // namespace vitrelle::host
