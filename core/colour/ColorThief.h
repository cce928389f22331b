// The palette of an image: what the application asks for.
#pragma once

#include "core/colour/ColourMap.h"
#include "core/platform/Image.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace vitrelle {

/// Every answer is empty when the image has no bitmap or no pixels, or the colour count is outside
/// 2 to 256. `quality` is the distance in pixels between samples, as for `MMCQ::quantize`.
///
/// An image's samples are straight, so a half-transparent red counts as the red it stands for, and
/// a pixel counts at all by its own alpha sample; opaque pictures count whole.
class ColorThief final {
 public:
  ColorThief() = delete;

  static constexpr std::int64_t standardQuality = 10;
  static constexpr bool standardIgnoreWhite = true;

  /// The first colour of a palette of 5.
  static std::optional<MMCQ::Color> dominantColor(const Image& image,
                                                  std::int64_t quality = standardQuality,
                                                  bool ignoreWhite = standardIgnoreWhite);

  static std::optional<MMCQ::ColorMap> colorMap(const Image& image, std::int64_t colorCount,
                                                std::int64_t quality = standardQuality,
                                                bool ignoreWhite = standardIgnoreWhite);

  /// The colours of that map, the most important first.
  static std::optional<std::vector<MMCQ::Color>> palette(const Image& image,
                                                         std::int64_t colorCount,
                                                         std::int64_t quality = standardQuality,
                                                         bool ignoreWhite = standardIgnoreWhite);
};

} // namespace vitrelle
