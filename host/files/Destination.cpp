#include "host/files/Destination.h"

#include "host/files/PendingFile.h"

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <system_error>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace vitrelle::host {

namespace {

Result<Destination> inHome(const HomeFolder& home, const std::string& place) {
  struct stat status {};
  if (lstat(place.c_str(), &status) == 0 && !S_ISREG(status.st_mode) && !S_ISLNK(status.st_mode)) {
    return Failure{place, "it is no regular file"};
  }
  Destination destination;
  destination.path = place;
  destination.waitingPrefix = home.pendingFolder() + "/";
  return destination;
}

/// Where a file of this name lies, or would be made.
std::string withLinksFollowed(std::filesystem::path path) {
  constexpr int most = 40;
  for (int links = 0; links < most; ++links) {
    std::error_code isNone;
    const std::filesystem::path target = std::filesystem::read_symlink(path, isNone);
    if (isNone) break;
    path = path.parent_path() / target;
  }
  return path;
}

bool sameFile(const struct stat& left, const struct stat& right) {
  return left.st_dev == right.st_dev && left.st_ino == right.st_ino;
}

Result<Destination> streamTo(const std::string& place, Descriptor stream) {
  if (isatty(stream.get()) == 1) return Failure{place, "it is a terminal"};
  const int flags = fcntl(stream.get(), F_GETFL);
  if (flags < 0 || fcntl(stream.get(), F_SETFL, flags & ~O_NONBLOCK) != 0) {
    return Failure{place, std::strerror(errno)};
  }
  Destination destination;
  destination.stream = std::move(stream);
  return destination;
}

Result<Destination> elsewhere(const std::string& place) {
  Destination destination;
  destination.path = withLinksFollowed(place);
  destination.waitingPrefix = folderOf(destination.path) + "/.vitrelle-";
  destination.mode = 0666;
  destination.folderMode = 0777;

  // Opened before all else, since that alone tells for certain what may be written.
  Descriptor old(open(place.c_str(), O_WRONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
  if (!old && errno == ENOENT) return destination;
  if (!old && errno == ENXIO) return Failure{place, "nobody reads from it"};
  struct stat status {};
  if (!old || fstat(old.get(), &status) != 0) return Failure{place, std::strerror(errno)};
  if (S_ISCHR(status.st_mode) || S_ISFIFO(status.st_mode)) return streamTo(place, std::move(old));
  if (!S_ISREG(status.st_mode)) return Failure{place, "it is no regular file"};

  // Replacing the file behind our own output would lose what else goes there.
  struct stat other {};
  if (fstat(STDOUT_FILENO, &other) == 0 && sameFile(status, other)) {
    return streamTo(place, Descriptor(fcntl(STDOUT_FILENO, F_DUPFD_CLOEXEC, 3)));
  }
  if (lstat(destination.path.c_str(), &other) != 0 || !sameFile(status, other)) {
    return Failure{place, "the file has no name by which it could be replaced"};
  }
  destination.old = {status.st_uid, status.st_gid, status.st_mode & 0777};
  return destination;
}

} // namespace

Result<Destination> destinationOf(const HomeFolder& home, const std::string& place) {
  return place.starts_with(home.path() + "/") ? inHome(home, place) : elsewhere(place);
}

} // namespace vitrelle::host
