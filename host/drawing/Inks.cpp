#include "host/drawing/Inks.h"

#include "host/drawing/Blur.h"
#include "host/drawing/Shadows.h"
#include "host/drawing/TextLayout.h"
#include "host/imaging/Resize.h"
#include "host/painting/PainterValues.h"

#include <QLinearGradient>
#include <QPainterPath>
#include <QRawFont>

#include <algorithm>
#include <cmath>
#include <iterator>
#include <utility>

namespace vitrelle::host {

namespace {

QRectF qRect(const PointRect& rect) {
  return {rect.x, rect.y, rect.width, rect.height};
}

QBrush brushOf(const LinearGradient& gradient) {
  if (gradient.stops.empty()) return Qt::NoBrush; // Qt would go from black to white
  QLinearGradient result(gradient.start.x, gradient.start.y, gradient.end.x, gradient.end.y);
  for (const GradientStop& stop : gradient.stops)
    result.setColorAt(stop.at, qColour(stop.colour));
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

/// The bitmap with as many pixels as are drawn, where it has more: the painter looks at four of
/// them for each that it sets, and would leave the others out.
Bitmap asDrawn(const Bitmap& bitmap, const QSizeF& pixels) {
  constexpr double nearly = 1.1;
  const bool isShrunk =
      bitmap.size.width > pixels.width() * nearly || bitmap.size.height > pixels.height() * nearly;
  if (!isShrunk) return bitmap;
  const auto side = [](double drawn, std::int32_t there) {
    return static_cast<std::int32_t>(std::clamp(std::ceil(drawn), 1.0, static_cast<double>(there)));
  };
  auto shrunk = resizeBitmap(
      bitmap, {side(pixels.width(), bitmap.size.width), side(pixels.height(), bitmap.size.height)});
  return shrunk ? *std::move(shrunk) : bitmap;
}

/// Whether the font's glyphs are pictures or in several colours, which no outline is. The tables
/// asked for are the small ones that come with such glyphs.
bool isColoured(const QRawFont& font) {
  return !font.fontTable("CBLC").isEmpty() || !font.fontTable("CPAL").isEmpty() ||
         !font.fontTable("sbix").isEmpty();
}

/// The pixels that something within the bounds may touch.
QRect pixelsOf(const QRectF& bounds) {
  // The rasteriser works in fractions of a pixel; bounds far out would not fit a whole number.
  constexpr double farOut = 1e6;
  const QRectF all(-farOut, -farOut, 2 * farOut, 2 * farOut);
  return (bounds & all).toAlignedRect().adjusted(-1, -1, 1, 1);
}

void paintAll(const Inks& inks, QPainter& painter, const QRect& visible) {
  const QTransform toTarget = painter.transform();
  for (const Ink& ink : inks) {
    ink.paint(painter, visible);
    painter.setTransform(toTarget);
  }
}

QRectF boundsOf(const Inks& inks) {
  QRectF bounds;
  for (const Ink& ink : inks)
    bounds |= ink.bounds;
  return bounds;
}

/// Takes display lists apart, at so many pixels per point.
class Inker final {
 public:
  Inker(const Symbols& symbols, double scale) : symbols_(symbols), scale_(scale) {}

  Inks inks(const DisplayList& list, const QTransform& toPixels) const {
    Inks result;
    for (const DisplayItem& item : list)
      std::visit([&](const auto& content) { add(result, content, toPixels); }, item.content);
    return result;
  }

 private:
  static void addFill(Inks& to, const QPainterPath& path, const QBrush& brush,
                      const QTransform& toPixels) {
    to.push_back({.bounds = toPixels.mapRect(path.controlPointRect()),
                  .once = true,
                  .paint = [=](QPainter& painter, const QRect&) {
                    painter.setTransform(toPixels, true);
                    painter.fillPath(path, brush);
                  }});
  }

  static void add(Inks& to, const DrawnPath& item, const QTransform& toPixels) {
    const QPainterPath path = qPath(item.path, item.rule);
    addFill(to, item.stroke ? outlineOf(path, *item.stroke) : path,
            item.gradient ? brushOf(*item.gradient) : qColour(item.colour), toPixels);
  }

  static void add(Inks& to, const DrawnText& item, const QTransform& toPixels) {
    const TextLayout text = layOutText(QString::fromStdString(item.text), item.font, item.room);
    for (const TextLine& line : text.lines) {
      const double slack = std::max(0.0, item.box.width - line.width);
      const double left = item.alignment == TextAlignment::centre ? slack / 2
                          : line.rightToLeft                      ? slack
                                                                  : 0;
      QPointF start = toPixels.map(QPointF(item.box.x + left, item.box.y + line.baseline));
      // A baseline between two rows of pixels would blur every foot of the line.
      if (toPixels.type() <= QTransform::TxScale) start.setY(std::round(start.y()));
      QTransform glyphs(toPixels.m11(), toPixels.m12(), toPixels.m21(), toPixels.m22(), start.x(),
                        start.y());
      glyphs.scale(1.0 / unitsPerPoint, 1.0 / unitsPerPoint);
      for (const QGlyphRun& run : line.runs)
        addRun(to, run, qColour(item.colour), glyphs);
    }
  }

  static void addRun(Inks& to, const QGlyphRun& run, const QColor& colour,
                     const QTransform& toPixels) {
    const QRawFont font = run.rawFont();
    const QList<quint32> glyphs = run.glyphIndexes();
    const QList<QPointF> positions = run.positions();
    if (!isColoured(font)) {
      QPainterPath outlines;
      outlines.setFillRule(Qt::WindingFill);
      for (qsizetype i = 0; i < glyphs.size(); ++i)
        outlines.addPath(font.pathForGlyph(glyphs[i]).translated(positions[i]));
      return addFill(to, outlines, colour, toPixels);
    }
    const double reach = 2 * font.pixelSize(); // of a glyph from its position, at the very most
    QRectF bounds;
    for (const QPointF& position : positions)
      bounds |= QRectF(position, QSizeF()).adjusted(-reach, -reach, reach, reach);
    to.push_back({.bounds = toPixels.mapRect(bounds),
                  .once = true,
                  .paint = [=](QPainter& painter, const QRect&) {
                    const double opacity = painter.opacity();
                    painter.setTransform(toPixels, true);
                    painter.setOpacity(opacity * colour.alphaF());
                    painter.drawGlyphRun({}, run);
                    painter.setOpacity(opacity);
                  }});
  }

  void add(Inks& to, const DrawnSymbol& item, const QTransform& toPixels) const {
    if (!item.ownColours) return addSymbol(to, symbols_.outline(item.name), item, toPixels);
    DrawnSymbol drawn = item;
    for (const SymbolPart& part : symbols_.parts(item.name)) {
      drawn.colour = part.colour.value_or(item.colour);
      addSymbol(to, part.outline, drawn, toPixels);
    }
  }

  static void addSymbol(Inks& to, const SymbolOutline& symbol, const DrawnSymbol& item,
                        QTransform toPixels) {
    const double fit = std::min(item.box.width / symbol.width, item.box.height / symbol.height);
    toPixels.translate(item.box.x + (item.box.width - symbol.width * fit) / 2,
                       item.box.y + (item.box.height - symbol.height * fit) / 2);
    toPixels.scale(fit, fit);
    const QPainterPath path = qPath(symbol.path, symbol.rule);
    addFill(to, path, qColour(item.colour), toPixels);
    if (const double more = symbolEdge(item.weight, symbol.height); more > 0) {
      addFill(to, outlineOf(path, {more, LineCap::round, LineJoin::round, 10}),
              qColour(item.colour), toPixels);
    }
  }

  static void add(Inks& to, const DrawnImage& item, const QTransform& toPixels) {
    const auto bitmap = item.image.bitmap();
    if (!bitmap || bitmap->size.width == 0 || bitmap->size.height == 0) return;
    const QImage image = qImage(asDrawn(*bitmap, toPixels.mapRect(qRect(item.box)).size()));
    if (!item.outline.commands.empty()) {
      QBrush brush(image); // a clip would have jagged edges
      brush.setTransform(
          QTransform::fromScale(item.box.width / image.width(), item.box.height / image.height()) *
          QTransform::fromTranslate(item.box.x, item.box.y));
      return addFill(to, qPath(item.outline), brush, toPixels);
    }
    to.push_back({.bounds = toPixels.mapRect(qRect(item.box)),
                  .once = true,
                  .paint = [=, box = qRect(item.box)](QPainter& painter, const QRect&) {
                    painter.setTransform(toPixels, true);
                    painter.drawImage(box, image);
                  }});
  }

  void add(Inks& to, const DrawnGroup& group, const QTransform& toPixels) const {
    const Transform& t = group.transform;
    const double opacity = std::clamp(group.opacity, 0.0, 1.0);
    Inks parts = inks(group.items, QTransform(t.a, t.b, t.c, t.d, t.x, t.y) * toPixels);
    if (group.shadow) return addShadowed(to, std::move(parts), *group.shadow, opacity);
    if (opacity >= 1) {
      std::ranges::move(parts, std::back_inserter(to));
      return;
    }
    const bool once = parts.size() == 1 && parts[0].once;
    const QRectF bounds = boundsOf(parts);
    to.push_back({.bounds = bounds,
                  .once = true,
                  .paint = [=, parts = std::move(parts)](QPainter& painter, const QRect& visible) {
                    const double before = painter.opacity();
                    painter.setOpacity(before * opacity);
                    if (once)
                      paintAll(parts, painter, visible);
                    else
                      paintWhole(painter, visible, parts, bounds);
                    painter.setOpacity(before);
                  }});
  }

  /// What overlaps is put together first, and then painted as one picture.
  static void paintWhole(QPainter& painter, const QRect& visible, const Inks& parts,
                         const QRectF& bounds) {
    const QRect area = pixelsOf(bounds) & visible;
    if (area.isEmpty()) return;
    QImage whole = transparent(area.size());
    paintOn(whole, area.topLeft(), parts);
    painter.drawImage(area.topLeft(), whole);
  }

  void addShadowed(Inks& to, Inks parts, const Shadow& shadow, double opacity) const {
    const QRectF bounds = boundsOf(parts);
    const int reach = blurReach(shadow.radius * scale_);
    const QPoint offset = offsetOf(shadow, scale_);
    const QRectF spread = bounds.adjusted(-reach, -reach, reach, reach).translated(QPointF(offset));
    to.push_back({.bounds = bounds | spread,
                  .once = false,
                  .paint = [=, scale = scale_, parts = std::move(parts)](QPainter& painter,
                                                                         const QRect& visible) {
                    // What is not seen itself may have a shadow that is.
                    const QRect casting =
                        visible.translated(-offset).adjusted(-reach, -reach, reach, reach);
                    const QRect area = pixelsOf(bounds) & (visible | casting);
                    if (area.isEmpty()) return;
                    QImage whole = transparent(area.size());
                    paintOn(whole, area.topLeft(), parts);
                    const QRect ink = inkOf(whole);
                    if (ink.isEmpty()) return;
                    const double before = painter.opacity();
                    painter.setOpacity(before * opacity);
                    drawShadow(painter, visible, area.topLeft(), whole, ink, shadow, scale);
                    painter.drawImage(area.topLeft() + ink.topLeft(), whole, ink);
                    painter.setOpacity(before);
                  }});
  }

  const Symbols& symbols_;
  double scale_;
};

} // namespace

QImage transparent(const QSize& size) {
  QImage canvas(size, QImage::Format_ARGB32_Premultiplied);
  canvas.fill(Qt::transparent);
  return canvas;
}

void paintOn(QImage& canvas, const QPoint& corner, const Inks& inks) {
  QPainter painter(&canvas);
  painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
  painter.translate(-corner);
  paintAll(inks, painter, QRect(corner, canvas.size()));
}

Inks inksOf(const DisplayList& list, const Symbols& symbols, const QTransform& toPixels,
            double scale) {
  return Inker(symbols, scale).inks(list, toPixels);
}

} // namespace vitrelle::host
