// Replaces files whole: a reader sees the old file or the new one, and a process that is killed
// leaves the old one.
#pragma once

#include "core/platform/Result.h"
#include "host/files/HomeFolder.h"

#include <cstdint>
#include <span>
#include <string>

namespace vitrelle::host {

/// A file that is written, and durable, under a name of its own in the pending folder until it is
/// put into place. Removed when that does not happen.
class [[nodiscard]] PendingFile final {
 public:
  static Result<PendingFile> write(const HomeFolder& home, std::span<const std::uint8_t> bytes);

  PendingFile(PendingFile&& other) noexcept;
  PendingFile& operator=(PendingFile&& other) noexcept;
  ~PendingFile();

  /// Renames it over whatever file has that path. Durable once `syncFolder` has run.
  Status moveTo(const std::string& path);

 private:
  explicit PendingFile(std::string path) : path_(std::move(path)) {}
  void discard();

  std::string path_; ///< empty once it is in place
};

/// Makes the renames in a folder durable.
void syncFolder(const std::string& path);

/// Replaces one file.
Status replaceFile(const HomeFolder& home, const std::string& path,
                   std::span<const std::uint8_t> bytes);

/// Removes what killed processes left in the pending folder more than an hour ago.
void removeAbandonedFiles(const HomeFolder& home);

} // namespace vitrelle::host
