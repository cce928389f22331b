#include "host/files/PendingFile.h"

#include "host/files/Destination.h"

#include <atomic>
#include <cerrno>
#include <cstring>
#include <filesystem>
#include <utility>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace vitrelle::host {

namespace {

std::string uniqueName() {
  static std::atomic<unsigned> next{0};
  return std::to_string(getpid()) + "-" + std::to_string(next++);
}

/// Locks a file that has just been made; false when someone who clears up was faster.
bool lockNew(const Descriptor& file) {
  if (flock(file.get(), LOCK_EX | LOCK_NB) != 0) return errno != EWOULDBLOCK;
  struct stat status {};
  return fstat(file.get(), &status) == 0 && status.st_nlink != 0;
}

/// Opens and locks a new file for what waits, in a folder that is made when it is not there. Gives
/// none, and `errno`.
Descriptor openNew(const Destination& destination, std::string& path) {
  for (int attempt = 0; attempt < 100; ++attempt) {
    path = destination.waitingPrefix + uniqueName();
    Descriptor file(open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, destination.mode));
    if (file && lockNew(file)) return file;
    if (file) { // its name goes, or is gone
      errno = EAGAIN;
      continue;
    }
    // Another process with our number may have left a file of that name.
    if (errno == EEXIST) continue;
    if (errno != ENOENT ||
        !makeFolder(folderOf(destination.waitingPrefix), destination.folderMode)) {
      break;
    }
  }
  return {};
}

/// Gives the file that takes the place of an old one its owner, where we may, and its permissions.
bool takeAfter(const Destination::Owner& old, const Descriptor& file) {
  if (fchown(file.get(), old.user, old.group) != 0 && errno != EPERM) return false;
  return fchmod(file.get(), old.mode) == 0;
}

bool writeAll(int file, std::span<const std::uint8_t> bytes) {
  while (!bytes.empty()) {
    const ssize_t count = ::write(file, bytes.data(), bytes.size());
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) return false;
    bytes = bytes.subspan(static_cast<std::size_t>(count));
  }
  return true;
}

} // namespace

Result<PendingFile> PendingFile::write(const HomeFolder& home, const std::string& place,
                                       std::span<const std::uint8_t> bytes) {
  Result<Destination> found = destinationOf(home, place);
  if (!found) return found.failure();
  Destination destination = *std::move(found);
  if (destination.stream) {
    if (!writeAll(destination.stream.get(), bytes)) return Failure{place, std::strerror(errno)};
    return PendingFile(std::move(destination.stream), "", place);
  }
  std::string path;
  Descriptor file = openNew(destination, path);
  if (!file) return Failure{place, std::strerror(errno)};
  PendingFile pending(std::move(file), path, destination.path);
  const int descriptor = pending.file_.get();
  if ((destination.old && !takeAfter(*destination.old, pending.file_)) ||
      !writeAll(descriptor, bytes) || fdatasync(descriptor) != 0) {
    return Failure{place, std::strerror(errno)};
  }
  return pending;
}

PendingFile::PendingFile(PendingFile&& other) noexcept
    : file_(std::move(other.file_)),
      path_(std::exchange(other.path_, "")),
      place_(std::move(other.place_)) {}

PendingFile& PendingFile::operator=(PendingFile&& other) noexcept {
  if (this != &other) {
    discard();
    file_ = std::move(other.file_);
    path_ = std::exchange(other.path_, "");
    place_ = std::move(other.place_);
  }
  return *this;
}

PendingFile::~PendingFile() {
  discard();
}

void PendingFile::discard() {
  if (!path_.empty()) unlink(path_.c_str());
}

Status PendingFile::moveIntoPlace() {
  if (path_.empty()) return success();
  int result = rename(path_.c_str(), place_.c_str());
  if (result != 0 && errno == ENOENT) {
    Status folder = makeFolder(folderOf(place_));
    if (!folder) return folder;
    result = rename(path_.c_str(), place_.c_str());
  }
  if (result != 0) return Failure{place_, std::strerror(errno)};
  path_.clear();
  return success();
}

std::string folderOf(const std::string& path) {
  const std::size_t slash = path.find_last_of('/');
  if (slash == std::string::npos) return ".";
  return slash == 0 ? "/" : path.substr(0, slash);
}

void syncFolder(const std::string& path) {
  const int folder = open(path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (folder < 0) return;
  fsync(folder);
  close(folder);
}

Status replaceFile(const HomeFolder& home, const std::string& path,
                   std::span<const std::uint8_t> bytes) {
  Result<PendingFile> pending = PendingFile::write(home, path, bytes);
  if (!pending) return pending.failure();
  PendingFile file = *std::move(pending);
  Status moved = file.moveIntoPlace();
  if (moved) syncFolder(folderOf(path));
  return moved;
}

void removeAbandonedFiles(const HomeFolder& home) {
  std::error_code error;
  for (const auto& entry : std::filesystem::directory_iterator(home.pendingFolder(), error)) {
    const char* path = entry.path().c_str();
    // A folder holds a store in the making; it is opened for reading, as folders are.
    const int mode = entry.is_directory(error) ? O_RDONLY | O_DIRECTORY : O_WRONLY;
    const Descriptor file(open(path, mode | O_NONBLOCK | O_NOFOLLOW | O_CLOEXEC));
    struct stat opened {};
    struct stat named {};
    // Whoever writes to it now goes on under the lock; a name that is put into place meanwhile is
    // gone, or another's.
    if (file && fstat(file.get(), &opened) == 0 &&
        (S_ISREG(opened.st_mode) || S_ISDIR(opened.st_mode)) &&
        flock(file.get(), LOCK_EX | LOCK_NB) == 0 && lstat(path, &named) == 0 &&
        named.st_ino == opened.st_ino) {
      std::filesystem::remove_all(path, error);
    }
  }
}

} // namespace vitrelle::host
