// The folder in which all that Vitrelle keeps lies, and the names in it.
#pragma once

#include "core/platform/Files.h"
#include "core/platform/Result.h"

#include <cstddef>
#include <optional>
#include <string>

#include <sys/types.h>

namespace vitrelle::host {

/// Its parts are made when first written to, for the user alone.
class HomeFolder final {
 public:
  explicit HomeFolder(std::string path) : path_(std::move(path)) {}

  /// `$VITRELLE_HOME`, else `$XDG_DATA_HOME/vitrelle`, else `~/.local/share/vitrelle`.
  static HomeFolder ofUser();

  const std::string& path() const { return path_; }
  /// Slices and other images, and nothing else; no subfolders.
  std::string groupFolder() const;
  /// Files on their way. On the same file system, so that they can be renamed into place.
  std::string pendingFolder() const { return path_ + "/tmp"; }
  /// What can be had again from elsewhere.
  std::string cacheFolder() const { return path_ + "/cache"; }
  /// Rewritten at each request that the widgets be drawn anew.
  std::string timelinesFile() const { return path_ + "/timelines"; }
  /// Locked by whoever changes what belongs together.
  std::string lockFile() const { return path_ + "/lock"; }
  /// The phone that is stood for.
  std::string phoneFile() const { return path_ + "/phone"; }
  /// Whether the application may know where the device is, and from whom.
  std::string locationFile() const { return path_ + "/location"; }
  /// Locked by the application while it runs.
  std::string applicationLockFile() const { return path_ + "/app.lock"; }

  /// Fails where a pipe or a folder stands in the place of one of these files, or a file in the
  /// place of a folder: programs are to say so before they wait on it or pass over it.
  Status check() const;

  Files files() const;

 private:
  std::string path_;
};

/// What a file of a few lines holds, or so much of it; nothing when there is none, or no plain
/// file, or when it can't be read. Never waits.
std::optional<std::string> readSmallFile(const std::string& path, std::size_t mostBytes = 4096);

/// Makes the folder and those above it, by default for the user alone; existing ones stay as they
/// are.
Status makeFolder(const std::string& path, mode_t mode = 0700);

} // namespace vitrelle::host
