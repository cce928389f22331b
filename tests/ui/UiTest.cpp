#include "tests/ui/UiTest.h"

#include "host/drawing/DrawingProcess.h"
#include "ui/Words.h"

#include <QAccessible>
#include <QGuiApplication>
#include <QQuickStyle>
#include <QSGRendererInterface>
#include <QSignalSpy>

#include <cstdio>

namespace vitrelle::test {

namespace {

void failOnWarnings(QtMsgType type, const QMessageLogContext&, const QString& message) {
  if (type == QtDebugMsg || type == QtInfoMsg) return;
  if (message.contains(u"propagateSizeHints")) return; // no window manager is there to take them
  ADD_FAILURE() << message.toStdString();
}

QQuickItem* search(QQuickItem* item, const QString& objectName) {
  if (!item->isVisible()) return nullptr;
  if (item->objectName() == objectName) return item;
  for (QQuickItem* child : item->childItems()) {
    if (QQuickItem* found = search(child, objectName)) return found;
  }
  return nullptr;
}

} // namespace

QQuickItem* Driver::find(const QString& objectName) const {
  QQuickItem* found = search(shell_.window()->contentItem(), objectName);
  EXPECT_NE(found, nullptr) << objectName.toStdString();
  return found;
}

bool Driver::isShown(const QString& objectName) const {
  QCoreApplication::processEvents();
  return search(shell_.window()->contentItem(), objectName) != nullptr;
}

QString Driver::accessibleName(const QString& objectName) const {
  QQuickItem* item = find(objectName);
  const QAccessibleInterface* seen =
      item == nullptr ? nullptr : QAccessible::queryAccessibleInterface(item);
  return seen == nullptr ? QString() : seen->text(QAccessible::Name);
}

QPoint Driver::middle(const QString& objectName) const {
  const QQuickItem* item = find(objectName);
  if (item == nullptr) return {};
  const auto now = [item] {
    return item->mapToScene(QPointF(item->width() / 2, item->height() / 2)).toPoint();
  };
  // Pages come in from the side, and are not to be pressed before they are at rest.
  const QRect screen(QPoint(), shell_.window()->size());
  QPoint last = now();
  int rests = 0;
  EXPECT_TRUE(eventually([&] {
    const QPoint before = std::exchange(last, now());
    rests = before == last && screen.contains(last) ? rests + 1 : 0;
    return rests == 3;
  })) << objectName.toStdString();
  return last;
}

void Driver::click(const QString& objectName, Qt::MouseButton button) const {
  QTest::mouseClick(shell_.window(), button, {}, middle(objectName));
}

void Driver::drag(QPoint from, int distance) const {
  QTest::mousePress(shell_.window(), Qt::LeftButton, {}, from);
  constexpr int steps = 8;
  for (int i = 1; i <= steps; ++i)
    QTest::mouseMove(shell_.window(), from + QPoint(distance * i / steps, 0));
  QTest::mouseRelease(shell_.window(), Qt::LeftButton, {}, from + QPoint(distance, 0));
}

void Driver::key(Qt::Key key, Qt::KeyboardModifiers modifiers) const {
  constexpr int pause = 2; // milliseconds: a press at the time of a release is one of a held key
  QTest::qSleep(pause);
  QTest::keyClick(shell_.window(), key, modifiers);
}

void Driver::repeat(Qt::Key key) const {
  QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier, QString(), true);
  QCoreApplication::sendEvent(shell_.window(), &event);
}

bool Driver::eventually(const std::function<bool()>& isSo) {
  return QTest::qWaitFor(isSo, 15000); // sanitizers are slow
}

UiTest::UiTest() {
  phone.userInterfaceStyle = darkStyle;
  qInstallMessageHandler(failOnWarnings);
  platform.symbols = {.outline =
                          [](const std::string&) {
                            SymbolOutline square;
                            square.path.commands = {PathCommand::move, PathCommand::line,
                                                    PathCommand::line, PathCommand::close};
                            square.path.points = {{0, 0}, {16, 0}, {16, 16}};
                            return square;
                          },
                      .parts = [](const std::string&) { return std::vector<SymbolPart>(); },
                      .match = [](const std::string&) { return SymbolMatch::alias; }};
  host::useDrawing(platform);
  platform.widgetCenter.watchReloads = [](const std::function<void()>&) { return Subscription(); };
  defaults.values(Suite::standard)["last_used_app_version"] = std::string("2.2");
}

UiTest::~UiTest() {
  shell.reset();
  qInstallMessageHandler(nullptr);
}

void UiTest::open(ui::ShellOptions options) {
  shell = std::make_unique<ui::Shell>(platform, std::move(options));
  ASSERT_TRUE(shell->open());
  ASSERT_TRUE(QTest::qWaitForWindowExposed(shell->window()));
  shell->window()->requestActivate();
  driver = std::make_unique<Driver>(*shell);
  QCoreApplication::processEvents();
}

void UiTest::waitFor(const char* objectName) const {
  EXPECT_TRUE(Driver::eventually([&] { return driver->isShown(objectName); })) << objectName;
}

void UiTest::waitForEndOf(const char* objectName) const {
  EXPECT_TRUE(Driver::eventually([&] { return !driver->isShown(objectName); })) << objectName;
}

void UiTest::openFamily(const QString& tile) {
  driver->click(QStringLiteral("widgetCentreButton"));
  const QString name = QStringLiteral("tile ") + tile;
  if (!driver->isShown(name)) driver->click(QStringLiteral("tile More"));
  driver->find(name)->forceActiveFocus(); // scrolls there
  driver->click(name);
}

} // namespace vitrelle::test

// What Qt leaves behind of textures. What our code allocates is named by our frames, and still
// told.
extern "C" const char* __lsan_default_suppressions();
extern "C" const char* __lsan_default_suppressions() {
  return "leak:libQt6Quick.so\nleak:libQt6Gui.so\nleak:libQt6Core.so\n";
}

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nonexistent"); // the desktop's dialogs stay away
  QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
  QQuickStyle::setStyle(QStringLiteral("Basic"));
  testing::InitGoogleTest(&argc, argv);
  const QGuiApplication application(argc, argv);
  QTranslator words;
  vitrelle::ui::installWords(words, QLocale::c());
  return RUN_ALL_TESTS();
}
