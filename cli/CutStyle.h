// One wallpaper style cut from its screenshots: what `cut` does once and a batch does often.
#pragma once

#include "core/platform/Platform.h"
#include "core/slicing/ImageCropper.h"

#include <cstdint>
#include <functional>
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

/// Whether the phone has measurements; complains if not.
bool isMeasured(const Platform& platform);

/// Stores one screenshot for an appearance; gives what became of its files.
using StoreScreenshot = std::function<std::vector<StoredSlice>(const Image&, InterfaceStyle)>;

/// Reads and decodes the given screenshots, and then stores each, so that one that can't be used
/// leaves everything as it was.
Result<CutStyle> cutScreenshots(const Platform& platform, const Screenshots& screenshots,
                                const StoreScreenshot& store);

/// Cuts the given screenshots into the style.
Result<CutStyle> cutStyle(const Platform& platform, StyleNumber number,
                          const Screenshots& screenshots);

/// Complains of all that went wrong or looks wrong; whether every file was written.
bool complainOf(const CutStyle& cut);

/// How many files were written, and their sizes in bytes together.
std::size_t writtenFiles(const CutStyle& cut);
std::size_t totalBytes(const CutStyle& cut);

} // namespace vitrelle::cli
