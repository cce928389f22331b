// ClockBench: an analog clock, sixty turned bars and the ring of a battery at 3x, beside Qt's
// painter doing the same.
#include "bench/Timing.h"
#include "core/drawing/Shapes.h"
#include "core/families/battery/Meter.h"
#include "core/families/clock/AnalogClockView.h"
#include "host/drawing/Rasteriser.h"
#include "host/symbols/Symbols.h"

#include <QApplication>
#include <QGraphicsDropShadowEffect>
#include <QGraphicsLineItem>
#include <QGraphicsScene>
#include <QPainter>
#include <QPainterPath>

#include <cstdio>
#include <cstdlib>
#include <numbers>
#include <utility>
#include <vector>

namespace {

using namespace vitrelle;

constexpr PointSize frame{158, 158};
constexpr double scale = 3;
constexpr double side = frame.width * scale;
constexpr double hourDegrees = 10.5 * 30 + 6;
constexpr double minuteDegrees = 30 * 6 + 6;
constexpr float level = 0.8F;

void draw(const Drawing& drawing, const DisplayList& list) {
  if (!drawing.render({&list, 1}, {0, 0, frame.width, frame.height}, scale)) std::exit(1);
}

View clockFace() {
  return AnalogClockView{.timeInSeconds = 10.5 * 3600, .complexity = 2, .dialShape = 1}.view();
}

constexpr int barCount = 60;

/// Each turned, and where told faded, by a group of its own.
View barsFace(double opacity) {
  std::vector<View> bars;
  for (int i = 0; i < barCount; ++i) {
    const View bar = framed(filled(shapes::rectangle, {1, 1, 1, 1}), 2, 15);
    const View arm = padded(bar, {.bottom = 110});
    const double radians = 2 * std::numbers::pi * i / barCount;
    bars.push_back(rotated(opacity < 1 ? faded(arm, opacity) : arm, radians));
  }
  return zstack(std::move(bars));
}

/// The same without shadows, which the painter has none of.
DisplayList withoutShadows(DisplayList list) {
  for (DisplayItem& item : list) {
    if (auto* group = std::get_if<DrawnGroup>(&item.content)) {
      group->shadow.reset();
      group->items = withoutShadows(std::move(group->items));
    }
  }
  return list;
}

QImage blank() {
  QImage image(static_cast<int>(side), static_cast<int>(side), QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::transparent);
  return image;
}

QPen pen(double width, const QColor& colour, Qt::PenCapStyle cap) {
  return {colour, width, Qt::SolidLine, cap, Qt::MiterJoin};
}

/// The dial and the hours, about the middle, in points.
void paintDial(QPainter& painter) {
  painter.setPen(pen(4, Qt::white, Qt::FlatCap));
  painter.setBrush(Qt::NoBrush);
  painter.drawRoundedRect(QRectF(-55, -55, 110, 110), 18, 18);
  painter.setPen(Qt::NoPen);
  painter.setBrush(Qt::white);
  for (int hour = 0; hour < 12; ++hour) {
    painter.drawRoundedRect(QRectF(-1, -50, 2, 15), 1, 1);
    painter.rotate(30);
  }
}

/// To points, from the middle.
void toMiddle(QPainter& painter) {
  painter.translate(side / 2, side / 2);
  painter.scale(scale, scale);
}

void drawPlainClock() {
  QImage image = blank();
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing);
  toMiddle(painter);
  paintDial(painter);
  painter.setPen(pen(2, Qt::white, Qt::RoundCap));
  painter.rotate(hourDegrees);
  painter.drawLine(QPointF(), QPointF(0, -20));
  painter.rotate(minuteDegrees - hourDegrees);
  painter.drawLine(QPointF(), QPointF(0, -30));
}

/// The hands with the shadow that Qt's own effect makes.
void drawPlainShadowedClock() {
  QGraphicsScene scene;
  const auto addHand = [&](double length, double degrees) {
    auto* hand = new QGraphicsLineItem(0, 0, 0, -length * scale);
    hand->setPen(pen(2 * scale, Qt::white, Qt::RoundCap));
    hand->setRotation(degrees);
    hand->setPos(side / 2, side / 2);
    auto* effect = new QGraphicsDropShadowEffect;
    effect->setOffset(3 * scale, 2 * scale);
    effect->setBlurRadius(4 * 3 * scale); // reaches as far as a deviation of 3 points
    effect->setColor(QColor(0, 0, 0, 77));
    hand->setGraphicsEffect(effect);
    scene.addItem(hand);
  };
  addHand(20, hourDegrees);
  addHand(30, minuteDegrees);
  QImage image = blank();
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.save();
  toMiddle(painter);
  paintDial(painter);
  painter.restore();
  scene.render(&painter, image.rect(), image.rect());
}

void drawPlainBars(double opacity) {
  QImage image = blank();
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing);
  toMiddle(painter);
  painter.setOpacity(opacity);
  for (int i = 0; i < barCount; ++i) {
    painter.fillRect(QRectF(-1, -62.5, 2, 15), Qt::white);
    painter.rotate(360.0 / barCount);
  }
}

void drawPlainRing() {
  QImage image = blank();
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.scale(scale, scale);
  const QRectF box(16, 16, frame.width - 32, frame.height - 32);
  painter.setPen(pen(16, QColor(0, 255, 0, 128), Qt::RoundCap));
  painter.drawEllipse(box);
  painter.setPen(pen(16, Qt::green, Qt::RoundCap));
  painter.drawArc(box, 90 * 16, static_cast<int>(-level * 360 * 16));
}

void print(const char* what, double ours, double plain) {
  std::printf("%s %.2f ms, plain Qt %.2f ms, ratio %.2f\n", what, ours, plain, ours / plain);
}

} // namespace

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication application(argc, argv);
  const Drawing drawing = host::makeDrawing(host::makeSymbols());
  const auto ring = [] {
    return Meter{
        .battery = level, .ringColour = {0, 1, 0, 1}, .symbolOn = false, .percentageOn = false}
        .view();
  };
  const DisplayList flat = withoutShadows(layOut(clockFace(), frame, drawing));
  const auto times = bench::medians(
      101,
      {[&] { draw(drawing, layOut(clockFace(), frame, drawing)); }, drawPlainShadowedClock,
       [&] { draw(drawing, flat); }, drawPlainClock,
       [&] { draw(drawing, layOut(ring(), frame, drawing)); }, drawPlainRing,
       [&] { draw(drawing, layOut(barsFace(1), frame, drawing)); }, [] { drawPlainBars(1); },
       [&] { draw(drawing, layOut(barsFace(0.5), frame, drawing)); }, [] { drawPlainBars(0.5); }});
  print("analog clock at 3x", times[0], times[1]);
  print("analog clock at 3x without its shadows", times[2], times[3]);
  print("ring at 3x", times[4], times[5]);
  print("60 turned bars at 3x", times[6], times[7]);
  print("60 turned and faded bars at 3x", times[8], times[9]);
}
