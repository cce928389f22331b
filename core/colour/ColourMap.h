// A palette of the dominant colours of a picture, by modified median cut: the box that spans the
// picture's colours is cut again and again at the median of its widest channel, and each box that
// is left gives one colour, the mean of its pixels.
#pragma once

#include "core/colour/ColourHistogram.h"
#include "core/platform/PlatformColour.h"

#include <array>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <utility>
#include <vector>

namespace vitrelle {

class MMCQ final {
 public:
  MMCQ() = delete;

  struct Color {
    std::uint8_t r = 0;
    std::uint8_t g = 0;
    std::uint8_t b = 0;
    bool operator==(const Color&) const = default;

    PlatformColour platformColour() const { return {r / 255.0, g / 255.0, b / 255.0, 1.0}; }
  };

  class VBox;
  class ColorMap;

  static constexpr std::int64_t minimumColorCount = 2;
  static constexpr std::int64_t maximumColorCount = 256;

  /// Nothing when there are no pixels or `colorCount` is outside 2 to 256. The pixels are packed,
  /// four bytes each: alpha, blue, green, red. `quality` is the distance in pixels from one sample
  /// to the next; 0 is a fatal error, below 0 samples nothing. A picture in which nothing counts
  /// gives one white box. The map may hold fewer or more boxes than asked for: 5 for 5, 3 for 2,
  /// 255 for 256.
  static std::optional<ColorMap> quantize(std::span<const std::uint8_t> pixels,
                                          std::int64_t quality, bool ignoreWhite,
                                          std::int64_t colorCount);
  /// The same for a bitmap, whose rows are read where they are.
  static std::optional<ColorMap> quantize(const Bitmap& bitmap, std::int64_t quality,
                                          bool ignoreWhite, std::int64_t colorCount);
};

/// A box of cells of the colour cube, with inclusive bounds in cube coordinates. A bound pair with
/// the minimum above the maximum makes it empty. Count, volume and average are computed when first
/// asked for and kept, so a box must not be shared by threads, and its bounds must not change once
/// it was asked.
class MMCQ::VBox final {
 public:
  std::uint8_t rMin = 255, rMax = 0;
  std::uint8_t gMin = 255, gMax = 0;
  std::uint8_t bMin = 255, bMax = 0;

  /// The empty box.
  explicit VBox(std::shared_ptr<const ColourHistogram> histogram);

  /// A copy keeps nothing of what was computed: it is made to be given other bounds.
  VBox(const VBox& other);
  VBox(VBox&&) = default;
  VBox& operator=(VBox&&) = default;

  /// The number of pixels in the box.
  std::int64_t count() const;

  /// The number of cells; 0 for a box that was emptied by a cut.
  std::int64_t volume(bool force = false) const;

  /// The mean colour of the pixels; of the bounds' middle when there are none.
  Color average(bool force = false) const;

  /// The two parts of the box, of which one may be empty; nothing for a box of fewer than two
  /// pixels, which can't be parted.
  std::optional<std::pair<VBox, VBox>> cut() const;

 private:
  enum class Channel { red, green, blue };
  /// Pixels by their coordinate in one channel.
  using Slices = std::array<std::int64_t, coordinatesPerChannel>;

  Channel widestChannel() const;
  Slices slices(Channel channel) const;

  std::shared_ptr<const ColourHistogram> histogram_;
  mutable std::optional<Color> average_;
  mutable std::optional<std::int64_t> volume_;
  mutable std::optional<std::int64_t> count_;
};

/// The boxes of a quantised picture, the most important first.
class MMCQ::ColorMap final {
 public:
  std::vector<VBox> vboxes;

  /// The mean colours of the boxes, in their order.
  std::vector<Color> paletteColors() const;

  /// The mean colour with the least sum of absolute differences; of equals, the first. Black when
  /// there are no boxes.
  Color nearestColor(const Color& to) const;
};

} // namespace vitrelle
