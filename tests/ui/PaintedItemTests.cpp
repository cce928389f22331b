// Items are painted in the screen's own pixels, at every scale of the window.
#include "ui/parts/PaintedItem.h"

#include <gtest/gtest.h>

#include <QPainter>
#include <QQuickWindow>
#include <QTest>

namespace vitrelle {
namespace {

/// Every other column of its pixels is black: whatever stretches them makes some grey or as broad
/// as two.
class Columns final : public ui::PaintedItem {
 public:
  using PaintedItem::PaintedItem;
  qreal pixels() const { return pixelsPerPoint(); }
  using PaintedItem::pixelSize;

 protected:
  void paint(QPainter* painter) override {
    painter->resetTransform();
    painter->fillRect(QRect(QPoint(), pixelSize()), Qt::white);
    for (int x = 0; x < pixelSize().width(); x += 2)
      painter->fillRect(x, 0, 1, pixelSize().height(), Qt::black);
  }
};

TEST(PaintedItem, pixels_areThoseOfTheScreenAtEveryScale) {
  QQuickWindow window;
  window.setColor(Qt::red);
  window.resize(300, 120);
  QQuickItem phone(window.contentItem());
  Columns columns(&phone);
  columns.setPosition({7.3, 5.9});
  columns.setSize({200.4, 60.2});
  window.show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
  const qreal ratio = window.effectiveDevicePixelRatio();
  for (const qreal scale : {1.0, 0.777, 1.25, 0.5185, 1.0}) {
    phone.setScale(scale);
    phone.setTransformOrigin(QQuickItem::TopLeft);
    EXPECT_TRUE(QTest::qWaitFor([&] { return qFuzzyCompare(columns.pixels(), scale * ratio); }));
    const QImage seen = window.grabWindow().convertToFormat(QImage::Format_RGB32);
    const int y = qRound((5.9 + 30) * scale * ratio);
    int changes = 0;
    int width = 0;
    for (int x = 1; x < seen.width(); ++x) {
      const QRgb pixel = seen.pixel(x, y);
      if (pixel == QColor(Qt::red).rgb()) continue;
      ++width;
      EXPECT_TRUE(pixel == QColor(Qt::black).rgb() || pixel == QColor(Qt::white).rgb()) << x;
      changes += pixel != seen.pixel(x - 1, y) ? 1 : 0;
    }
    EXPECT_EQ(width, columns.pixelSize().width()) << scale;
    EXPECT_EQ(changes, width) << scale << ": each column is told from the one before";
  }
}

} // namespace
} // namespace vitrelle
