// What those find who do not see the screens, or not well.
#include "tests/ui/UiTest.h"

#include "core/store/GroupStore.h"

#include <QAccessible>
#include <QColor>
#include <QQmlComponent>
#include <QQmlEngine>

#include <cmath>

namespace vitrelle {
namespace {

class AccessibilityTest : public test::UiTest {
 protected:
  AccessibilityTest() {
    setNumber("amountOfConfigs", 1);
    addStyle(0);
    addSlices(0);
  }
  void storeText() {
    std::vector<textWidgetData> records;
    records.push_back(newRecord(families::text, records));
    GroupStore(platform).saveRecords(families::text, records);
  }
  void openAt(const QString& screen) {
    open({.screen = screen, .framed = false, .animated = false});
    QTest::qWait(20);
  }
};

QString nameOf(QQuickItem* item) {
  const QAccessibleInterface* seen = QAccessible::queryAccessibleInterface(item);
  return seen == nullptr ? QString() : seen->text(QAccessible::Name);
}

/// Whether what the text stands in, or stands beside, is named by it.
bool isPartOfAName(QQuickItem* item, const QString& text) {
  const auto tells = [&](QQuickItem* other) {
    const QString name = nameOf(other);
    return !name.isEmpty() && (name.contains(text) || text.startsWith(name));
  };
  for (QQuickItem* sibling : item->parentItem()->childItems()) {
    if (sibling != item && tells(sibling)) return true;
  }
  for (QQuickItem* above = item->parentItem(); above != nullptr; above = above->parentItem()) {
    if (tells(above)) return true;
  }
  return false;
}

void expectTextsAreTold(QQuickItem* item) {
  if (!item->isVisible()) return;
  const QString text = item->inherits("QQuickText") ? item->property("text").toString() : QString();
  if (!text.isEmpty()) {
    const bool isTold =
        item->property("spoken").toBool() ? nameOf(item) == text : isPartOfAName(item, text);
    EXPECT_TRUE(isTold) << text.toStdString();
  }
  for (QQuickItem* child : item->childItems())
    expectTextsAreTold(child);
}

TEST_F(AccessibilityTest, everyText_isToldOnEveryScreen) {
  for (const bool hasRecord : {false, true}) {
    if (hasRecord) storeText();
    for (const QString& name : ui::Shell::screenNames()) {
      SCOPED_TRACE(name.toStdString());
      openAt(name);
      expectTextsAreTold(shell->window()->contentItem());
      driver.reset();
      shell.reset();
    }
  }
}

TEST_F(AccessibilityTest, values_haveTheirRealRange) {
  openAt(QStringLiteral("ModernCustomTextSetupView"));
  QQuickItem* row = driver->find("stepUp")->parentItem()->parentItem();
  QAccessibleInterface* stepper = QAccessible::queryAccessibleInterface(row);
  ASSERT_NE(stepper->valueInterface(), nullptr);
  EXPECT_EQ(stepper->valueInterface()->minimumValue().toInt(), 10);
  EXPECT_EQ(stepper->valueInterface()->maximumValue().toInt(), 80);
  EXPECT_EQ(stepper->valueInterface()->currentValue().toInt(), 18);
  ASSERT_NE(stepper->actionInterface(), nullptr);
  stepper->actionInterface()->doAction(QAccessibleActionInterface::increaseAction());
  EXPECT_EQ(stepper->valueInterface()->currentValue().toInt(), 19);
}

/// The relative luminance and the ratio of WCAG 2.
double luminance(const QColor& colour) {
  const auto linear = [](double value) {
    return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
         0.0722 * linear(colour.blueF());
}
double contrast(const QColor& front, const QColor& ground) {
  const auto mixed = [&](double a, double b) {
    const double share = front.alphaF();
    return static_cast<float>(a * share + b * (1 - share));
  };
  const double one = luminance(QColor::fromRgbF(mixed(front.redF(), ground.redF()),
                                                mixed(front.greenF(), ground.greenF()),
                                                mixed(front.blueF(), ground.blueF())));
  const double other = luminance(ground);
  return (std::max(one, other) + 0.05) / (std::min(one, other) + 0.05);
}

TEST_F(AccessibilityTest, textsAndSigns_standOutFromTheScreen) {
  for (const InterfaceStyle style : {lightStyle, darkStyle}) {
    phone.userInterfaceStyle = style;
    open();
    QQmlComponent component(qmlEngine(driver->find("rootPage")));
    component.setData("import QtQuick\nimport Vitrelle\nQtObject { property var c: ["
                      "Theme.screenTop, Theme.screenBottom, Theme.card, Theme.text, "
                      "Theme.quietText, Theme.quietSymbol, Theme.accent] }",
                      QUrl());
    const std::unique_ptr<QObject> theme(component.create());
    ASSERT_NE(theme, nullptr) << component.errorString().toStdString();
    const QVariantList c = theme->property("c").toList();
    const auto colour = [&](int index) { return c[index].value<QColor>(); };
    for (const int ground : {0, 1, 2}) {
      SCOPED_TRACE(std::to_string(style) + " on " + std::to_string(ground));
      EXPECT_GE(contrast(colour(3), colour(ground)), 4.5);
      EXPECT_GE(contrast(colour(4), colour(ground)), 4.5);
      EXPECT_GE(contrast(colour(5), colour(ground)), 3);
      EXPECT_GE(contrast(colour(6), colour(ground)), 3);
    }
    driver.reset();
    shell.reset();
  }
}

} // namespace
} // namespace vitrelle
