#include "core/colour/ColourMap.h"

#include "core/platform/FatalError.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <numeric>

namespace vitrelle {
namespace {

using VBox = MMCQ::VBox;

/// Of the boxes, this share is found by count alone; the rest by count and volume.
constexpr double firstStageShare = 0.75;
constexpr int maximumRounds = 1000;

bool orderByCount(const VBox& a, const VBox& b) {
  return a.count() < b.count();
}

bool orderByCountVolume(const VBox& a, const VBox& b) {
  if (a.count() == b.count()) return a.volume() < b.volume();
  return checkedMultiply(a.count(), a.volume()) < checkedMultiply(b.count(), b.volume());
}

using Order = bool (*)(const VBox&, const VBox&);

/// The smallest box around all cells that hold a pixel.
VBox startingBox(std::shared_ptr<const ColourHistogram> histogram) {
  VBox box(histogram);
  const auto widen = [](std::uint8_t& least, std::uint8_t& most, int coordinate) {
    least = std::min(least, static_cast<std::uint8_t>(coordinate));
    most = std::max(most, static_cast<std::uint8_t>(coordinate));
  };
  for (std::size_t cell = 0; cell < histogramCells; ++cell) {
    if ((*histogram)[cell] == 0) continue;
    widen(box.rMin, box.rMax, static_cast<int>(cell >> 10));
    widen(box.gMin, box.gMax, static_cast<int>(cell >> 5 & 31));
    widen(box.bMin, box.bMax, static_cast<int>(cell & 31));
  }
  return box;
}

/// Cuts the last box of the queue, which is sorted, until the stage has made `target` boxes of one.
/// The target is looked at after each cut, so there is at least one cut where one can be made.
void cutBoxes(std::vector<VBox>& queue, Order order, std::int64_t target) {
  // Stable: a box goes behind its equals, in the queue's order of arrival.
  const auto insert = [&](VBox box) {
    queue.insert(std::upper_bound(queue.begin(), queue.end(), box, order), std::move(box));
  };
  std::int64_t boxes = 1;
  for (int round = 0; round < maximumRounds; ++round) {
    auto halves = queue.back().cut();
    if (!halves) return; // the last box stays the last: no later round could do more
    queue.pop_back();
    insert(std::move(halves->first));
    insert(std::move(halves->second));
    if (++boxes >= target) return;
  }
}

MMCQ::ColorMap quantizeHistogram(ColourHistogram cells, std::int64_t colorCount) {
  std::vector<VBox> queue;
  queue.push_back(startingBox(std::make_shared<const ColourHistogram>(std::move(cells))));

  const double share = std::ceil(firstStageShare * static_cast<double>(colorCount));
  cutBoxes(queue, orderByCount, static_cast<std::int64_t>(share));

  std::stable_sort(queue.begin(), queue.end(), orderByCountVolume);
  cutBoxes(queue, orderByCountVolume, colorCount - static_cast<std::int64_t>(queue.size()));

  std::reverse(queue.begin(), queue.end());
  return MMCQ::ColorMap{.vboxes = std::move(queue)};
}

bool acceptable(std::int64_t colorCount) {
  return colorCount >= MMCQ::minimumColorCount && colorCount <= MMCQ::maximumColorCount;
}

/// Where to part a channel whose bounds are `least` and `most`: the last coordinate of the first
/// part. Not at the median but in the middle of the longer of its sides.
int cutCoordinate(const std::array<std::int64_t, coordinatesPerChannel>& slices, int least,
                  int most) {
  constexpr std::int64_t notSet = -1;
  std::array<std::int64_t, coordinatesPerChannel> partialSum;
  partialSum.fill(notSet);
  std::int64_t total = 0;
  for (int i = least; i <= most; ++i) {
    total += slices[static_cast<std::size_t>(i)];
    partialSum[static_cast<std::size_t>(i)] = total;
  }
  const auto partial = [&](int i) { return partialSum[static_cast<std::size_t>(i)]; };
  const auto lookAhead = [&](int i) { return partial(i) == notSet ? notSet : total - partial(i); };

  int median = least;
  while (median <= most && partial(median) <= total / 2)
    ++median;
  if (median > most) fatalError("VBox can't be cut");

  const int left = median - least;
  const int right = most - median;
  int cut = right < left ? std::max(least, static_cast<int>(median - 1 - left / 2.0))
                         : std::min(most - 1, median + right / 2);
  // Neither part should be empty, if that can be had.
  while (cut < 0 || partial(cut) <= 0)
    ++cut;
  while (lookAhead(cut) == 0 && cut > 0 && partial(cut - 1) > 0)
    --cut;
  return cut;
}

} // namespace

MMCQ::VBox::VBox(std::shared_ptr<const ColourHistogram> histogram)
    : histogram_(std::move(histogram)) {}

MMCQ::VBox::VBox(const VBox& other)
    : rMin(other.rMin),
      rMax(other.rMax),
      gMin(other.gMin),
      gMax(other.gMax),
      bMin(other.bMin),
      bMax(other.bMax),
      histogram_(other.histogram_) {}

std::int64_t MMCQ::VBox::count() const {
  if (!count_) {
    const Slices reds = slices(Channel::red);
    count_ = std::accumulate(reds.begin(), reds.end(), std::int64_t{0});
  }
  return *count_;
}

std::int64_t MMCQ::VBox::volume(bool force) const {
  if (force || !volume_) {
    volume_ = std::int64_t{rMax - rMin + 1} * (gMax - gMin + 1) * (bMax - bMin + 1);
  }
  return *volume_;
}

MMCQ::Color MMCQ::VBox::average(bool force) const {
  if (!force && average_) return *average_;

  const std::int64_t pixels = count();
  const auto mean = [&](Channel channel, int least, int most) {
    if (pixels == 0) {
      const int middle = sampleMultiplier * (least + most + 1) / 2;
      return static_cast<std::uint8_t>(std::min(middle, 255));
    }
    const Slices ofChannel = slices(channel);
    std::int64_t sum = 0; // of the cells' centres, in the scale of samples
    for (int i = least; i <= most; ++i) {
      const int centre = i * sampleMultiplier + sampleMultiplier / 2;
      sum = checkedAdd(sum, checkedMultiply(centre, ofChannel[static_cast<std::size_t>(i)]));
    }
    return static_cast<std::uint8_t>(sum / pixels);
  };
  average_ = Color{mean(Channel::red, rMin, rMax), mean(Channel::green, gMin, gMax),
                   mean(Channel::blue, bMin, bMax)};
  return *average_;
}

std::optional<std::pair<VBox, VBox>> MMCQ::VBox::cut() const {
  if (count() < 2) return std::nullopt;

  const Channel channel = widestChannel();
  VBox first(*this);
  VBox second(*this);
  const auto cutAlong = [&](std::uint8_t VBox::*least, std::uint8_t VBox::*most) {
    const int cut = cutCoordinate(slices(channel), this->*least, this->*most);
    first.*most = static_cast<std::uint8_t>(cut);
    second.*least = static_cast<std::uint8_t>(cut + 1);
  };
  switch (channel) {
  case Channel::red:
    cutAlong(&VBox::rMin, &VBox::rMax);
    break;
  case Channel::green:
    cutAlong(&VBox::gMin, &VBox::gMax);
    break;
  case Channel::blue:
    cutAlong(&VBox::bMin, &VBox::bMax);
    break;
  }
  return std::pair(std::move(first), std::move(second));
}

MMCQ::VBox::Channel MMCQ::VBox::widestChannel() const {
  const int red = rMax - rMin;
  const int green = gMax - gMin;
  const int blue = bMax - bMin;
  if (red >= green && red >= blue) return Channel::red;
  return green >= blue ? Channel::green : Channel::blue;
}

MMCQ::VBox::Slices MMCQ::VBox::slices(Channel channel) const {
  // No sum exceeds the number of pixels, which an int64 holds.
  Slices result{};
  for (int red = rMin; red <= rMax; ++red) {
    for (int green = gMin; green <= gMax; ++green) {
      const std::int64_t* row = &(*histogram_)[cellIndex(red, green, 0)];
      if (channel == Channel::blue) {
        for (std::size_t blue = bMin; blue <= bMax; ++blue)
          result[blue] += row[blue];
      } else {
        std::int64_t sum = 0;
        for (std::size_t blue = bMin; blue <= bMax; ++blue)
          sum += row[blue];
        result[static_cast<std::size_t>(channel == Channel::red ? red : green)] += sum;
      }
    }
  }
  return result;
}

std::vector<MMCQ::Color> MMCQ::ColorMap::paletteColors() const {
  std::vector<Color> colours;
  colours.reserve(vboxes.size());
  for (const VBox& box : vboxes)
    colours.push_back(box.average());
  return colours;
}

MMCQ::Color MMCQ::ColorMap::nearestColor(const Color& to) const {
  Color nearest;
  std::int64_t least = std::numeric_limits<std::int64_t>::max();
  for (const VBox& box : vboxes) {
    const Color colour = box.average();
    const std::int64_t distance =
        std::abs(colour.r - to.r) + std::abs(colour.g - to.g) + std::abs(colour.b - to.b);
    if (distance >= least) continue;
    least = distance;
    nearest = colour;
  }
  return nearest;
}

std::optional<MMCQ::ColorMap> MMCQ::quantize(std::span<const std::uint8_t> pixels,
                                             std::int64_t quality, bool ignoreWhite,
                                             std::int64_t colorCount) {
  if (pixels.empty() || !acceptable(colorCount)) return std::nullopt;
  const Sampling sampling{.stride = quality, .ignoreWhite = ignoreWhite};
  return quantizeHistogram(histogramOfPixels(pixels, sampling), colorCount);
}

std::optional<MMCQ::ColorMap> MMCQ::quantize(const Bitmap& bitmap, std::int64_t quality,
                                             bool ignoreWhite, std::int64_t colorCount) {
  if (bitmap.size.width < 1 || bitmap.size.height < 1 || !acceptable(colorCount)) {
    return std::nullopt;
  }
  const Sampling sampling{.stride = quality, .ignoreWhite = ignoreWhite};
  return quantizeHistogram(histogramOfBitmap(bitmap, sampling), colorCount);
}

} // namespace vitrelle
