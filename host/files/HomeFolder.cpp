#include "host/files/HomeFolder.h"

#include "core/platform/Defaults.h"
#include "host/files/Descriptor.h"
#include "host/files/HomeLock.h"

#include <cerrno>
#include <cstdlib>
#include <cstring>

#include <fcntl.h>
#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

namespace vitrelle::host {

namespace {

/// Empty when there is none.
std::string environment(const char* name) {
  const char* value = std::getenv(name);
  return value == nullptr ? "" : value;
}

} // namespace

HomeFolder HomeFolder::ofUser() {
  if (const std::string home = environment("VITRELLE_HOME"); !home.empty()) return HomeFolder(home);
  const std::string data = environment("XDG_DATA_HOME");
  // A relative path there is to be ignored, by the rules of that variable.
  if (data.starts_with('/')) return HomeFolder(data + "/vitrelle");
  std::string user = environment("HOME");
  if (const passwd* entry = user.empty() ? getpwuid(geteuid()) : nullptr) user = entry->pw_dir;
  return HomeFolder(user + "/.local/share/vitrelle");
}

std::string HomeFolder::groupFolder() const {
  return path_ + "/" + groupIdentifier;
}

Status HomeFolder::check() const {
  struct Part {
    std::string path;
    bool isFolder;
  };
  for (const auto& [path, isFolder] :
       {Part{path_, true}, Part{groupFolder(), true}, Part{pendingFolder(), true},
        Part{timelinesFile(), false}, Part{phoneFile(), false}, Part{locationFile(), false},
        Part{lockFile(), false}, Part{applicationLockFile(), false}}) {
    struct stat status {};
    if (stat(path.c_str(), &status) != 0) {
      if (errno == ENOENT) continue;
      return Failure{path, std::strerror(errno)};
    }
    if (isFolder && !S_ISDIR(status.st_mode)) return Failure{path, "it is no folder"};
    if (!isFolder && !S_ISREG(status.st_mode)) return Failure{path, "it is no regular file"};
  }
  return success();
}

Files HomeFolder::files() const {
  return {
      .groupContainer = [folder = groupFolder()] { return std::optional(folder); },
      .fileExists =
          [](const std::string& path) {
            struct stat status {};
            return stat(path.c_str(), &status) == 0;
          },
      .lock = [home = *this](double patienceSeconds) { return lockHome(home, patienceSeconds); }};
}

std::optional<std::string> readSmallFile(const std::string& path, std::size_t mostBytes) {
  const Descriptor file(open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
  struct stat status {};
  if (!file || fstat(file.get(), &status) != 0 || !S_ISREG(status.st_mode)) return std::nullopt;
  std::string text(mostBytes, '\0');
  const ssize_t size = read(file.get(), text.data(), text.size());
  if (size < 0) return std::nullopt;
  text.resize(static_cast<std::size_t>(size));
  return text;
}

Status makeFolder(const std::string& path, mode_t mode) {
  if (mkdir(path.c_str(), mode) == 0) return success();
  const int error = errno;
  struct stat status {};
  if (error == EEXIST && stat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode)) {
    return success();
  }
  const std::size_t slash = path.find_last_of('/');
  if (error == ENOENT && slash != std::string::npos && slash > 0) {
    Status parent = makeFolder(path.substr(0, slash), mode);
    if (!parent) return parent;
    if (mkdir(path.c_str(), mode) == 0 || errno == EEXIST) return success();
  }
  return Failure{path, std::strerror(error)};
}

} // namespace vitrelle::host
