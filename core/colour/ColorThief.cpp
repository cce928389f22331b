#include "core/colour/ColorThief.h"

#include "core/platform/FatalError.h"

namespace vitrelle {

std::optional<MMCQ::Color> ColorThief::dominantColor(const Image& image, std::int64_t quality,
                                                     bool ignoreWhite) {
  const auto colours = palette(image, 5, quality, ignoreWhite);
  if (!colours) return std::nullopt;
  if (colours->empty()) fatalError("a palette without colours");
  return colours->front();
}

std::optional<MMCQ::ColorMap> ColorThief::colorMap(const Image& image, std::int64_t colorCount,
                                                   std::int64_t quality, bool ignoreWhite) {
  const auto bitmap = image.bitmap();
  if (!bitmap) return std::nullopt;
  return MMCQ::quantize(*bitmap, quality, ignoreWhite, colorCount);
}

std::optional<std::vector<MMCQ::Color>> ColorThief::palette(const Image& image,
                                                            std::int64_t colorCount,
                                                            std::int64_t quality,
                                                            bool ignoreWhite) {
  const auto map = colorMap(image, colorCount, quality, ignoreWhite);
  if (!map) return std::nullopt;
  return map->paletteColors();
}

} // namespace vitrelle
