#include "host/drawing/Rasteriser.h"

#include "host/drawing/Fonts.h"
#include "host/drawing/Inks.h"
#include "host/drawing/TextLayout.h"

#include <cmath>
#include <memory>
#include <utility>

namespace vitrelle::host {

namespace {

/// The longest side of a picture: more than three screens of the largest phone.
constexpr double maximumSide = 10000;

/// The pixels as the logic has them: straight alpha, in the order of their names.
Image imageOf(QImage&& canvas) {
  const auto pixels = std::make_shared<const QImage>(
      std::move(canvas).convertToFormat(QImage::Format_RGBA8888)); // in place
  return Image(Bitmap{.size = {pixels->width(), pixels->height()},
                      .bytesPerRow = static_cast<std::size_t>(pixels->bytesPerLine()),
                      .pixels = pixels->constBits(),
                      .opaque = false,
                      .owner = pixels});
}

Result<Image> render(const Symbols& symbols, std::span<const DisplayList> layers,
                     const PointRect& area, double scale) {
  // A hair above a whole pixel is the inexactness of the numbers.
  const double width = std::ceil(area.width * scale - 1e-6);
  const double height = std::ceil(area.height * scale - 1e-6);
  if (!(width >= 1 && height >= 1 && width <= maximumSide && height <= maximumSide)) {
    return Failure{"drawing", "the picture would be empty or far larger than a screen"};
  }
  const QSize size(static_cast<int>(width), static_cast<int>(height));
  const QTransform toPixels = QTransform(scale, 0, 0, scale, -area.x * scale, -area.y * scale);
  QImage canvas = transparent(size);
  for (std::size_t i = 0; i < layers.size(); ++i) {
    const Inks inks = inksOf(layers[i], symbols, toPixels, scale);
    if (i == 0) {
      paintOn(canvas, {}, inks);
      continue;
    }
    QImage layer = transparent(size);
    paintOn(layer, {}, inks);
    QPainter(&canvas).drawImage(0, 0, layer);
  }
  return imageOf(std::move(canvas));
}

} // namespace

Drawing makeDrawing(const Symbols& symbols) {
  return {.textSize =
              [](const std::string& text, const Font& font, const PointSize& room) {
                lookForFont(font.name);
                return layOutText(QString::fromStdString(text), font, room).size;
              },
          .lastBaseline =
              [](const std::string& text, const Font& font, const PointSize& room) {
                lookForFont(font.name);
                return layOutText(QString::fromStdString(text), font, room).lines.back().baseline;
              },
          .render = [symbols](std::span<const DisplayList> layers, const PointRect& area,
                              double scale) { return render(symbols, layers, area, scale); }};
}

} // namespace vitrelle::host
