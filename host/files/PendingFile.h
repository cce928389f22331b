// Replaces files whole: a reader sees the old file or the new one, and a process that is killed
// leaves the old one.
#pragma once

#include "core/platform/Result.h"
#include "host/files/Descriptor.h"
#include "host/files/HomeFolder.h"

#include <cstdint>
#include <span>
#include <string>

namespace vitrelle::host {

/// A file that is written, and durable, under a name of its own until it is put into place: in the
/// pending folder, or, where the place lies outside of the home, which may be on another file
/// system, hidden beside it; what goes to a pipe or a device is there at once. Removed when it is
/// not put into place. Until then it is locked, by which others tell it from one that a killed
/// process left.
class [[nodiscard]] PendingFile final {
 public:
  static Result<PendingFile> write(const HomeFolder& home, const std::string& place,
                                   std::span<const std::uint8_t> bytes);

  PendingFile(PendingFile&& other) noexcept;
  PendingFile& operator=(PendingFile&& other) noexcept;
  ~PendingFile();

  /// Renames it over whatever file is there. Durable once `syncFolder` has run.
  Status moveIntoPlace();

 private:
  PendingFile(Descriptor file, std::string path, std::string place)
      : file_(std::move(file)), path_(std::move(path)), place_(std::move(place)) {}
  void discard();

  Descriptor file_;  ///< open for the sake of its lock
  std::string path_; ///< empty once it is in place
  std::string place_;
};

/// The folder of a path.
std::string folderOf(const std::string& path);

/// Makes the renames in a folder durable.
void syncFolder(const std::string& path);

/// Replaces one file.
Status replaceFile(const HomeFolder& home, const std::string& path,
                   std::span<const std::uint8_t> bytes);

/// Removes what killed processes left in the pending folder: the files and folders that nobody has
/// locked.
/// Where the file system knows no locks, nothing.
void removeAbandonedFiles(const HomeFolder& home);

} // namespace vitrelle::host
