// The folder of images that the application and the widgets share, and the lock of all that is
// kept.
#pragma once

#include "core/platform/Data.h"
#include "core/platform/Result.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>

namespace vitrelle {

/// Keeps other programs from changing the same things for as long as a copy of it is left.
using HomeLock = std::shared_ptr<const void>;

struct Files {
  /// The root of the group container; nothing when there is none.
  std::function<std::optional<std::string>()> groupContainer;

  std::function<bool(const std::string& path)> fileExists;

  /// For whoever reads, changes and writes back what several programs may change: the count of
  /// styles with their files, a style's files with one another. Waits for another holder for so
  /// many seconds, then fails.
  std::function<Result<HomeLock>(double patienceSeconds)> lock;
};

} // namespace vitrelle
