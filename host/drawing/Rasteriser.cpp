#include "host/drawing/Rasteriser.h"

#include "host/drawing/Blur.h"
#include "host/drawing/Fonts.h"
#include "host/drawing/TextLayout.h"

#include <QColor>
#include <QImage>
#include <QPainter>
#include <QPainterPath>
#include <QRawFont>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <memory>
#include <utility>

namespace vitrelle::host {

namespace {

/// The longest side of a picture: more than three screens of the largest phone.
constexpr double maximumSide = 10000;

QColor qColour(const PlatformColour& colour) {
  const auto part = [](double value) { return static_cast<float>(std::clamp(value, 0.0, 1.0)); };
  return QColor::fromRgbF(part(colour.red), part(colour.green), part(colour.blue),
                          part(colour.alpha));
}

QRectF qRect(const PointRect& rect) {
  return {rect.x, rect.y, rect.width, rect.height};
}

QPainterPath qPath(const Path& path, FillRule rule = FillRule::nonZero) {
  QPainterPath result;
  result.setFillRule(rule == FillRule::evenOdd ? Qt::OddEvenFill : Qt::WindingFill);
  const auto point = [](PathPoint p) { return QPointF(p.x, p.y); };
  std::size_t next = 0;
  for (const PathCommand command : path.commands) {
    const PathPoint* points = path.points.data() + next;
    switch (command) {
    case PathCommand::move:
      result.moveTo(point(points[0]));
      break;
    case PathCommand::line:
      result.lineTo(point(points[0]));
      break;
    case PathCommand::cubic:
      result.cubicTo(point(points[0]), point(points[1]), point(points[2]));
      break;
    case PathCommand::close:
      result.closeSubpath();
      break;
    }
    next += pointCount(command);
  }
  return result;
}

/// A stroke as the outline to be filled. Stroking in the painter's own way differs by scale.
QPainterPath outlineOf(const QPainterPath& path, const StrokeStyle& style) {
  constexpr Qt::PenCapStyle caps[] = {Qt::FlatCap, Qt::RoundCap, Qt::SquareCap};
  constexpr Qt::PenJoinStyle joins[] = {Qt::MiterJoin, Qt::RoundJoin, Qt::BevelJoin};
  QPainterPathStroker stroker;
  stroker.setWidth(style.width);
  stroker.setCapStyle(caps[static_cast<std::size_t>(style.cap)]);
  stroker.setJoinStyle(joins[static_cast<std::size_t>(style.join)]);
  // Qt measures the limit from the middle of the line, others from its edge.
  stroker.setMiterLimit(style.miterLimit / 2);
  stroker.setCurveThreshold(0.05);
  QPainterPath outline = stroker.createStroke(path);
  outline.setFillRule(Qt::WindingFill);
  return outline;
}

/// Whether the font's glyphs are pictures or in several colours, which no outline is. The tables
/// asked for are the small ones that come with such glyphs.
bool isColoured(const QRawFont& font) {
  return !font.fontTable("CBLC").isEmpty() || !font.fontTable("CPAL").isEmpty() ||
         !font.fontTable("sbix").isEmpty();
}

/// An image's pixels as Qt takes them; they belong to the bitmap.
QImage qImage(const Bitmap& bitmap) {
  return QImage(bitmap.pixels, bitmap.size.width, bitmap.size.height,
                static_cast<qsizetype>(bitmap.bytesPerRow),
                bitmap.opaque ? QImage::Format_RGBX8888 : QImage::Format_RGBA8888);
}

QImage transparent(const QSize& size) {
  QImage canvas(size, QImage::Format_ARGB32_Premultiplied);
  canvas.fill(Qt::transparent);
  return canvas;
}

/// The pixels that are not transparent, as a rectangle around them.
QRect inkOf(const QImage& canvas) {
  int left = canvas.width();
  int right = -1;
  int top = -1;
  int bottom = -1;
  for (int y = 0; y < canvas.height(); ++y) {
    const auto* row = reinterpret_cast<const QRgb*>(canvas.constScanLine(y));
    const auto* end = row + canvas.width();
    const auto* first = std::find_if(row, end, [](QRgb pixel) { return pixel != 0; });
    if (first == end) continue;
    int last = canvas.width() - 1;
    while (row[last] == 0)
      --last;
    left = std::min(left, static_cast<int>(first - row));
    right = std::max(right, last);
    if (top < 0) top = y;
    bottom = y;
  }
  return top < 0 ? QRect() : QRect(QPoint(left, top), QPoint(right, bottom));
}

/// Draws what is on the canvas as a shadow, and moves it by whole pixels.
void drawShadow(QPainter& painter, const QImage& canvas, const QRect& ink, const Shadow& shadow,
                double scale) {
  if (ink.isEmpty()) return;
  const double deviation = shadow.radius * scale;
  const int reach = blurReach(deviation);
  const QPoint offset(static_cast<int>(std::lround(shadow.x * scale)),
                      static_cast<int>(std::lround(shadow.y * scale)));
  // No more of it than can be seen.
  const QRect spread = ink.adjusted(-reach, -reach, reach, reach);
  Mask mask(spread.width(), spread.height());
  for (int y = 0; y < ink.height(); ++y) {
    const auto* from =
        reinterpret_cast<const QRgb*>(canvas.constScanLine(ink.top() + y)) + ink.left();
    std::uint8_t* to = mask.row(y + reach) + reach;
    std::transform(from, from + ink.width(), to,
                   [](QRgb pixel) { return static_cast<std::uint8_t>(qAlpha(pixel)); });
  }
  blur(mask, deviation);
  const QRect seen = spread.intersected(canvas.rect().translated(-offset));
  if (seen.isEmpty()) return;
  QImage blurred(seen.size(), QImage::Format_ARGB32_Premultiplied);
  std::array<QRgb, 256> tints{};
  const QColor colour = qColour(shadow.colour);
  for (int alpha = 0; alpha < 256; ++alpha) {
    QColor tint = colour;
    tint.setAlphaF(static_cast<float>(alpha) / 255 * colour.alphaF());
    tints[static_cast<std::size_t>(alpha)] = qPremultiply(tint.rgba());
  }
  for (int y = 0; y < seen.height(); ++y) {
    const std::uint8_t* from =
        mask.row(seen.top() - spread.top() + y) + (seen.left() - spread.left());
    std::transform(from, from + seen.width(), reinterpret_cast<QRgb*>(blurred.scanLine(y)),
                   [&](std::uint8_t alpha) { return tints[alpha]; });
  }
  painter.drawImage(seen.topLeft() + offset, blurred);
}

/// Draws lists on one canvas of so many pixels per point.
class Canvas final {
 public:
  Canvas(const Symbols& symbols, QImage& image, double scale)
      : symbols_(symbols), image_(image), scale_(scale) {}

  void draw(const DisplayList& list, const QTransform& toPixels) {
    QPainter painter(&image_);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    for (const DisplayItem& item : list) {
      painter.setTransform(toPixels);
      std::visit([&](const auto& content) { drawItem(painter, content); }, item.content);
    }
  }

 private:
  static void drawItem(QPainter& painter, const DrawnPath& item) {
    const QPainterPath path = qPath(item.path, item.rule);
    painter.fillPath(item.stroke ? outlineOf(path, *item.stroke) : path, qColour(item.colour));
  }

  static void drawItem(QPainter& painter, const DrawnText& item) {
    const TextLayout text = layOutText(QString::fromStdString(item.text), item.font, item.room);
    const QTransform toPixels = painter.transform();
    for (const TextLine& line : text.lines) {
      const double slack = std::max(0.0, item.box.width - line.width);
      const double left = item.alignment == TextAlignment::centre ? slack / 2
                          : line.rightToLeft                      ? slack
                                                                  : 0;
      QPointF start = toPixels.map(QPointF(item.box.x + left, item.box.y + line.baseline));
      // A baseline between two rows of pixels would blur every foot of the line.
      if (toPixels.type() <= QTransform::TxScale) start.setY(std::round(start.y()));
      QTransform glyphs = toPixels;
      glyphs = QTransform(toPixels.m11(), toPixels.m12(), toPixels.m21(), toPixels.m22(), start.x(),
                          start.y());
      glyphs.scale(1.0 / unitsPerPoint, 1.0 / unitsPerPoint);
      painter.setTransform(glyphs);
      drawRuns(painter, line.runs, qColour(item.colour));
    }
  }

  static void drawRuns(QPainter& painter, const QList<QGlyphRun>& runs, const QColor& colour) {
    for (const QGlyphRun& run : runs) {
      const QRawFont font = run.rawFont();
      if (isColoured(font)) {
        painter.setOpacity(colour.alphaF());
        painter.drawGlyphRun({}, run);
        painter.setOpacity(1);
        continue;
      }
      QPainterPath outlines;
      outlines.setFillRule(Qt::WindingFill);
      const QList<quint32> glyphs = run.glyphIndexes();
      const QList<QPointF> positions = run.positions();
      for (qsizetype i = 0; i < glyphs.size(); ++i)
        outlines.addPath(font.pathForGlyph(glyphs[i]).translated(positions[i]));
      painter.fillPath(outlines, colour);
    }
  }

  void drawItem(QPainter& painter, const DrawnSymbol& item) const {
    const SymbolOutline symbol = symbols_.outline(item.name);
    const double fit = std::min(item.box.width / symbol.width, item.box.height / symbol.height);
    painter.translate(item.box.x + (item.box.width - symbol.width * fit) / 2,
                      item.box.y + (item.box.height - symbol.height * fit) / 2);
    painter.scale(fit, fit);
    const QPainterPath path = qPath(symbol.path, symbol.rule);
    painter.fillPath(path, qColour(item.colour));
    // A symbol has one weight; a heavier one is the same with its edge drawn.
    const double more = std::max(item.weight - 400, 0) / 500.0 * 0.9 * symbol.height / 16;
    if (more > 0) {
      painter.fillPath(outlineOf(path, {more, LineCap::round, LineJoin::round, 10}),
                       qColour(item.colour));
    }
  }

  static void drawItem(QPainter& painter, const DrawnImage& item) {
    const auto bitmap = item.image.bitmap();
    if (!bitmap || bitmap->size.width == 0 || bitmap->size.height == 0) return;
    const QImage image = qImage(*bitmap);
    if (item.outline.commands.empty()) {
      painter.drawImage(qRect(item.box), image);
      return;
    }
    QBrush brush(image); // a clip would have jagged edges
    brush.setTransform(
        QTransform::fromScale(item.box.width / image.width(), item.box.height / image.height()) *
        QTransform::fromTranslate(item.box.x, item.box.y));
    painter.fillPath(qPath(item.outline), brush);
  }

  void drawItem(QPainter& painter, const DrawnGroup& group) const {
    const Transform& t = group.transform;
    const QTransform toPixels = QTransform(t.a, t.b, t.c, t.d, t.x, t.y) * painter.transform();
    QImage whole = transparent(image_.size());
    Canvas(symbols_, whole, scale_).draw(group.items, toPixels);
    painter.resetTransform();
    painter.setOpacity(std::clamp(group.opacity, 0.0, 1.0));
    const QRect ink = inkOf(whole);
    if (group.shadow) drawShadow(painter, whole, ink, *group.shadow, scale_);
    painter.drawImage(ink.topLeft(), whole, ink);
    painter.setOpacity(1);
  }

  const Symbols& symbols_;
  QImage& image_;
  double scale_;
};

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
    if (i == 0) {
      Canvas(symbols, canvas, scale).draw(layers[i], toPixels);
      continue;
    }
    QImage layer = transparent(size);
    Canvas(symbols, layer, scale).draw(layers[i], toPixels);
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
          .render = [symbols](std::span<const DisplayList> layers, const PointRect& area,
                              double scale) { return render(symbols, layers, area, scale); }};
}

} // namespace vitrelle::host
