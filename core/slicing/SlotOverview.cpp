#include "core/slicing/SlotOverview.h"

#include "core/slicing/WidgetLocation.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

namespace vitrelle {

namespace {

/// How one family's slots are drawn. Lengths are in parts of the side of a small slot.
struct Pen {
  WidgetFamily family;
  std::array<double, 3> colour; ///< red, green, blue, 0 to 255
  double inset;                 ///< of the frame's outer edge from the slot's
  double width;
  double fill; ///< opacity of white inside
};

constexpr Pen pens[] = {
    {WidgetFamily::small, {255, 255, 255}, 0.060, 0.010, 0.16},
    {WidgetFamily::medium, {99, 230, 226}, 0.034, 0.014, 0},
    {WidgetFamily::large, {255, 149, 0}, 0.004, 0.018, 0},
};
constexpr double cornerRadius = 0.14;

struct Canvas {
  PixelSize size;
  std::vector<std::uint8_t> pixels;

  void blend(std::int32_t x, std::int32_t y, const std::array<double, 3>& colour, double opacity) {
    if (opacity <= 0) return;
    std::uint8_t* pixel =
        &pixels[4 * (static_cast<std::size_t>(y) * static_cast<std::size_t>(size.width) +
                     static_cast<std::size_t>(x))];
    for (std::size_t i = 0; i < 3; ++i) {
      pixel[i] =
          static_cast<std::uint8_t>(std::lround(pixel[i] + (colour[i] - pixel[i]) * opacity));
    }
    pixel[3] = std::max(pixel[3], static_cast<std::uint8_t>(std::lround(255 * opacity)));
  }
};

/// The distance of a point from the edge of a rounded rectangle, negative inside, in pixels.
double edgeDistance(double x, double y, const PixelRect& rect, double radius) {
  const auto overhang = [&](double at, std::int64_t start, std::int64_t length) {
    const double half = static_cast<double>(length) / 2;
    return std::abs(at - static_cast<double>(start) - half) - half + radius;
  };
  const double dx = overhang(x, rect.x, rect.width);
  const double dy = overhang(y, rect.y, rect.height);
  return std::hypot(std::max(dx, 0.0), std::max(dy, 0.0)) + std::min(std::max(dx, dy), 0.0) -
         radius;
}

/// How much of a pixel lies inside an edge at this distance from its centre.
double coverage(double distance) {
  return std::clamp(0.5 - distance, 0.0, 1.0);
}

void draw(Canvas& canvas, const PixelRect& slot, const Pen& pen, double unit) {
  const double inset = pen.inset * unit;
  const double width = pen.width * unit;
  const auto last = [](std::int64_t end, std::int32_t limit) {
    return static_cast<std::int32_t>(std::min<std::int64_t>(end, limit));
  };
  for (auto y = static_cast<std::int32_t>(slot.y);
       y < last(slot.y + slot.height, canvas.size.height); ++y) {
    for (auto x = static_cast<std::int32_t>(slot.x);
         x < last(slot.x + slot.width, canvas.size.width); ++x) {
      const double distance = edgeDistance(x + 0.5, y + 0.5, slot, cornerRadius * unit) + inset;
      const double outer = coverage(distance);
      const double inner = coverage(distance + width);
      canvas.blend(x, y, {255, 255, 255}, inner * pen.fill);
      canvas.blend(x, y, pen.colour, outer - inner);
    }
  }
}

} // namespace

std::optional<Image> slotOverview(const Image& screenshot, const WidgetMeasurements& measurements) {
  const Result<Bitmap> bitmap = screenshot.bitmap();
  if (!bitmap) return std::nullopt;
  const auto canvas = std::make_shared<Canvas>();
  canvas->size = bitmap->size;
  const std::size_t bytesPerRow = static_cast<std::size_t>(bitmap->size.width) * 4;
  for (std::int32_t y = 0; y < bitmap->size.height; ++y) {
    canvas->pixels.insert(canvas->pixels.end(), bitmap->row(y), bitmap->row(y) + bytesPerRow);
  }
  for (const Pen& pen : pens) {
    for (const WidgetLocationImageNames slot : slots(pen.family)) {
      draw(*canvas, slotRectangle(slot, measurements), pen,
           static_cast<double>(measurements.widgetSize));
    }
  }
  return Image(Bitmap{.size = canvas->size,
                      .bytesPerRow = bytesPerRow,
                      .pixels = canvas->pixels.data(),
                      .opaque = bitmap->opaque,
                      .owner = canvas},
               screenshot.profile());
}

} // namespace vitrelle
