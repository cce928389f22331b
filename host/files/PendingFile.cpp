#include "host/files/PendingFile.h"

#include <atomic>
#include <cerrno>
#include <cstring>
#include <ctime>
#include <filesystem>
#include <utility>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace vitrelle::host {

namespace {

std::string uniqueName() {
  static std::atomic<unsigned> next{0};
  return std::to_string(getpid()) + "-" + std::to_string(next++);
}

/// Where a name of our own is put before it; see the class.
std::string waitingPrefix(const HomeFolder& home, const std::string& place) {
  if (place.starts_with(home.path() + "/")) return home.pendingFolder() + "/";
  return folderOf(place) + "/.vitrelle-";
}

/// Opens a new file, in a folder that is made when it is not there. Gives -1 and `errno`.
int openNew(const std::string& prefix, std::string& path) {
  for (int attempt = 0; attempt < 100; ++attempt) {
    path = prefix + uniqueName();
    const int file = open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600);
    if (file >= 0) return file;
    // Another process with our number may have left a file of that name.
    if (errno == EEXIST) continue;
    if (errno != ENOENT || !makeFolder(folderOf(prefix))) break;
  }
  return -1;
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
  std::string path;
  const int file = openNew(waitingPrefix(home, place), path);
  if (file < 0) return Failure{place, std::strerror(errno)};
  PendingFile pending(path, place);
  const bool written = writeAll(file, bytes) && fdatasync(file) == 0;
  const int error = errno;
  close(file);
  if (!written) return Failure{place, std::strerror(error)};
  return pending;
}

PendingFile::PendingFile(PendingFile&& other) noexcept
    : path_(std::exchange(other.path_, "")), place_(std::move(other.place_)) {}

PendingFile& PendingFile::operator=(PendingFile&& other) noexcept {
  if (this != &other) {
    discard();
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
  constexpr std::time_t hour = 3600;
  std::error_code error;
  for (const auto& entry : std::filesystem::directory_iterator(home.pendingFolder(), error)) {
    struct stat status {};
    if (lstat(entry.path().c_str(), &status) != 0 || !S_ISREG(status.st_mode)) continue;
    if (std::time(nullptr) - status.st_mtime > hour) unlink(entry.path().c_str());
  }
}

} // namespace vitrelle::host
