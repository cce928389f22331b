#include "core/slicing/ImageCropper.h"

#include "core/slicing/Measurements.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace vitrelle {

namespace {

std::int64_t truncated(double value) {
  constexpr double limit = 0x1p63;
  if (!(value >= -limit && value < limit)) fatalError("a screen size that is no 64-bit integer");
  return static_cast<std::int64_t>(value);
}

std::string times(double width, double height) {
  return std::to_string(truncated(width)) + "x" + std::to_string(truncated(height));
}

} // namespace

std::vector<StoredSlice> ImageCropper::store(const Image& image, InterfaceStyle style,
                                             StyleNumber number) const {
  screenResolution();
  // All slices go to the platform in one call, in the order of their writing, so that it can
  // encode several at once.
  std::vector<Slice> slices;
  slices.push_back(
      {sliceFileName(number, rawValue(WidgetLocationImageNames::fullImage), style), image});
  for (const WidgetFamily family :
       {WidgetFamily::small, WidgetFamily::medium, WidgetFamily::large}) {
    std::vector<Slice> more = cut(image, family, style, number);
    std::move(more.begin(), more.end(), std::back_inserter(slices));
  }
  std::vector<StoredSlice> stored = write(slices);
  platform_.debugConsole.print("Storing at " + std::to_string(number.value) + "original");
  platform_.widgetCenter.reloadAllTimelines();
  return stored;
}

std::vector<StoredSlice> ImageCropper::cropSmall(const Image& image, InterfaceStyle style,
                                                 StyleNumber number) const {
  return write(cut(image, WidgetFamily::small, style, number));
}

std::vector<StoredSlice> ImageCropper::cropMedium(const Image& image, InterfaceStyle style,
                                                  StyleNumber number) const {
  return write(cut(image, WidgetFamily::medium, style, number));
}

std::vector<StoredSlice> ImageCropper::cropLarge(const Image& image, InterfaceStyle style,
                                                 StyleNumber number) const {
  return write(cut(image, WidgetFamily::large, style, number));
}

std::vector<StoredSlice> ImageCropper::save(const Image& image, const std::string& name) const {
  return write({{name + ".png", image}});
}

std::string ImageCropper::screenResolution() const {
  const PointSize bounds = platform_.device.screenBounds();
  const double scale = platform_.device.screenScale();
  const std::string pixels = times(bounds.width * scale, bounds.height * scale);
  platform_.debugConsole.print("Pixels: " + pixels);
  platform_.debugConsole.print("Points: " + times(bounds.width, bounds.height));
  return pixels;
}

std::vector<ImageCropper::Slice> ImageCropper::cut(const Image& image, WidgetFamily family,
                                                   InterfaceStyle style, StyleNumber number) const {
  const WidgetMeasurements measurements = Measurements::current(platform_);
  std::vector<Slice> slices;
  for (const WidgetLocationImageNames slot : slots(family)) {
    auto part = image.cropped(slotRectangle(slot, measurements));
    if (!part) break;
    slices.push_back({sliceFileName(number, rawValue(slot), style), *std::move(part)});
  }
  return slices;
}

std::vector<StoredSlice> ImageCropper::write(const std::vector<Slice>& slices) const {
  const auto folder = platform_.files.groupContainer();
  // An empty image, which stands for "none picked", has no PNG form.
  const bool empty = std::ranges::any_of(
      slices, [](const Slice& slice) { return slice.image.size() == PixelSize{}; });
  if (!folder || slices.empty() || empty) return {};
  std::vector<PngFile> files;
  files.reserve(slices.size());
  for (const Slice& slice : slices)
    files.push_back({*folder + "/" + slice.fileName, slice.image});

  std::vector<Result<std::size_t>> written = platform_.images.writePngFiles(files);
  std::vector<StoredSlice> stored;
  for (std::size_t i = 0; i < slices.size(); ++i) {
    stored.push_back({slices[i].fileName, slices[i].image.size(), std::move(written[i])});
  }
  return stored;
}

} // namespace vitrelle
