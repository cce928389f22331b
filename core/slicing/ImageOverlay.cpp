#include "core/slicing/ImageOverlay.h"

#include <algorithm>
#include <limits>

namespace vitrelle {

std::string overlayFileName(RecordIndex index) {
  return "overlayImage" + std::to_string(index.value) + ".png";
}

Result<Image> overlayOf(const Platform& platform, const Image& picture) {
  const PixelSize size = picture.size();
  if (size.width <= 0 || size.height <= 0) return Failure{"picture", "it has no pixels"};
  // In whole numbers, in which no division makes a square one row too high.
  const std::int64_t height =
      (std::int64_t{overlayWidth} * size.height + size.width - 1) / size.width;
  constexpr std::int64_t most = std::numeric_limits<std::int32_t>::max();
  return platform.images.resized(picture,
                                 {overlayWidth, static_cast<std::int32_t>(std::min(height, most))});
}

Status storeOverlay(const Platform& platform, const Image& picture, RecordIndex index) {
  const auto overlay = overlayOf(platform, picture);
  if (!overlay) return overlay.failure();
  const auto folder = platform.files.groupContainer();
  if (!folder) return Failure{overlayFileName(index), "there is no folder for it"};
  const PngFile file{*folder + "/" + overlayFileName(index), *overlay};
  const auto written = platform.images.writePngFiles({&file, 1});
  if (!written.front()) return written.front().failure();
  platform.debugConsole.print("Uploaded: " + file.path);
  return success();
}

} // namespace vitrelle
