// The real pages, offscreen, driven by pointer and keys. Any warning of Qt or QML fails the test.
#pragma once

#include "tests/core/app/AppTest.h"
#include "ui/Shell.h"

#include <QQuickItem>
#include <QTest>

#include <functional>
#include <memory>

namespace vitrelle::test {

/// Drives one window.
class Driver final {
 public:
  explicit Driver(ui::Shell& shell) : shell_(shell) {}

  /// Of what is visible. Fails the test when there is none.
  QQuickItem* find(const QString& objectName) const;
  bool isShown(const QString& objectName) const;
  /// What a screen reader says of it.
  QString accessibleName(const QString& objectName) const;
  void click(const QString& objectName, Qt::MouseButton button = Qt::LeftButton) const;
  void drag(QPoint from, int distance) const;
  void key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const;
  /// As a key that is held sends it again.
  void repeat(Qt::Key key) const;
  /// Runs the event loop until it is so, for a while at most.
  static bool eventually(const std::function<bool()>& isSo);

 private:
  QPoint middle(const QString& objectName) const;
  ui::Shell& shell_;
};

/// Pages over a platform in memory.
class UiTest : public AppTest {
 protected:
  UiTest();
  ~UiTest() override;

  /// Builds the window; the store and the folder are as the test wants them.
  void open(ui::ShellOptions options = {.screen = {}, .framed = false, .animated = false});

  /// For what comes, or goes, a while after it was asked for. Fails the test when it does not.
  void waitFor(const char* objectName) const;
  void waitForEndOf(const char* objectName) const;
  /// From the root, by the name on its tile.
  void openFamily(const QString& tile);

  QString accessibleName(const QString& objectName) const {
    return driver->accessibleName(objectName);
  }

  std::unique_ptr<ui::Shell> shell;
  std::unique_ptr<Driver> driver;
};

} // namespace vitrelle::test
