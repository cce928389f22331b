// One wallpaper style cut from its screenshots: what `cut` does once and a batch does often.
#pragma once

#include "core/platform/Platform.h"
#include "core/slicing/ImageCropper.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace vitrelle::cli {

struct Screenshots {
  std::optional<std::string> light; ///< paths
  std::optional<std::string> dark;
};

struct CutStyle {
  std::vector<StoredSlice> files; ///< in the order of their writing
  /// What the user should hear though the cutting went on: slots outside of a screenshot, a
  /// screenshot of another size than the phone's.
  std::vector<Failure> missing;
  std::vector<Failure> remarks;
};

/// Cuts the given screenshots into the style. Both are read and decoded before a file is written,
/// so that one that can't be used leaves everything as it was.
Result<CutStyle> cutStyle(const Platform& platform, std::int64_t style,
                          const Screenshots& screenshots);

/// Complains of all that went wrong or looks wrong; whether every file was written.
bool complainOf(const CutStyle& cut);

/// The files' sizes in bytes together.
std::size_t totalBytes(const CutStyle& cut);

} // namespace vitrelle::cli
