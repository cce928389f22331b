// What the parts of the window know of where they are: the screen that they lie on, the pictures
// and the symbols they draw, and how the user is at work.
#pragma once

#include "core/platform/Platform.h"
#include "ui/parts/PictureSource.h"

#include <QObject>
#include <QQmlEngine>
#include <QQuickWindow>

namespace vitrelle::ui {

class Surroundings final : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_SINGLETON
  Q_PROPERTY(qreal screenWidth READ screenWidth NOTIFY screenChanged)
  Q_PROPERTY(qreal screenHeight READ screenHeight NOTIFY screenChanged)
  /// Whether the screen lies in the frame of a phone.
  Q_PROPERTY(bool framed READ isFramed CONSTANT)
  Q_PROPERTY(bool animated READ isAnimated CONSTANT)
  Q_PROPERTY(bool dark READ isDark NOTIFY darkChanged)
  /// Whether the last that was done in the window was done by keys.
  Q_PROPERTY(bool keysInUse READ areKeysInUse NOTIFY keysInUseChanged)

 public:
  /// The platform must outlive it.
  Surroundings(const Platform& platform, bool framed, bool animated);

  /// Those of all parts that the engine makes.
  void give(QQmlEngine& engine);
  static Surroundings& of(const QQmlEngine& engine);
  /// For the QML engine itself.
  static Surroundings* create(QQmlEngine* engine, QJSEngine*);
  /// The window whose keys and pointers are noted.
  void setWindow(const QQuickWindow* window) { window_ = window; }

  const Platform& platform() const { return platform_; }
  PictureSource& pictures() { return pictures_; }

  qreal screenWidth() const { return platform_.device.screenBounds().width; }
  qreal screenHeight() const { return platform_.device.screenBounds().height; }
  bool isFramed() const { return framed_; }
  bool isAnimated() const { return animated_; }
  bool isDark() const;
  bool areKeysInUse() const { return keysInUse_; }
  /// Whether the key that was pressed last is one that is held, and sends its presses again.
  Q_INVOKABLE bool isKeyHeld() const { return keyHeld_; }

 Q_SIGNALS:
  void darkChanged();
  /// Another phone is stood for.
  void screenChanged();
  void keysInUseChanged();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void noteKey(const QKeyEvent& event);
  void followPhone();

  const Platform& platform_;
  const bool framed_;
  const bool animated_;
  PictureSource pictures_;
  const QQuickWindow* window_ = nullptr;
  bool keysInUse_ = false;
  bool keyHeld_ = false;
  int lastKey_ = 0;
  quint64 lastKeyTime_ = 0; ///< milliseconds, by the window system's clock
  Subscription phones_;     ///< last, for it calls this object
};

} // namespace vitrelle::ui
