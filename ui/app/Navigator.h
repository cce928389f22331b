// The screens that are open as QML sees them.
#pragma once

#include "core/app/Navigation.h"
#include "core/platform/Platform.h"
#include "ui/parts/Notices.h"

#include <QList>
#include <QObject>
#include <QQmlEngine>
#include <QString>
#include <QVariantList>
#include <QVariantMap>

namespace vitrelle::ui {

class Navigator;

/// One of them.
class Place final : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("the navigator makes it")
  /// The QML file that draws it, without its ending.
  Q_PROPERTY(QString page READ page CONSTANT)

 public:
  Place(Navigator& navigator, OpenScreen screen);

  const OpenScreen& screen() const { return screen_; }
  QString page() const;
  /// What the page begins with, made at each call.
  Q_INVOKABLE QVariantMap properties() const;

 private:
  Navigator& navigator_;
  OpenScreen screen_;
};

class Navigator final : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("the shell has it")
  /// From the root's.
  Q_PROPERTY(QVariantList places READ places NOTIFY changed)

 public:
  /// Both must outlive it.
  Navigator(const Platform& platform, Notices& notices);
  ~Navigator() override;

  const Platform& platform() const { return platform_; }
  Notices& notices() { return notices_; }

  QVariantList places() const;
  /// A name that no screen has opens nothing.
  Q_INVOKABLE void open(const QString& name);
  /// The same, but a screen that is open already is gone back to.
  Q_INVOKABLE void reveal(const QString& name);
  Q_INVOKABLE void openStyle(int styleNumber);
  Q_INVOKABLE void back() { navigation_.back(); }

 Q_SIGNALS:
  void changed();
  /// The program ends, whatever ends it; pages that are open are left.
  void closing();

 private:
  void follow();

  const Platform& platform_;
  Notices& notices_;
  Navigation navigation_;
  QList<Place*> places_;
  Subscription view_;
};

} // namespace vitrelle::ui
