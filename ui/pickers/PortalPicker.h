// The desktop's own dialogs for choosing a picture, and for choosing a place to save one, asked for
// through the XDG desktop portal. They are used first because they know the desktop's places,
// bookmarks and looks.
#pragma once

#include <QDBusConnection>
#include <QDBusObjectPath>
#include <QDBusPendingReply>
#include <QDBusServiceWatcher>
#include <QObject>
#include <QQuickWindow>
#include <QString>
#include <QTimer>
#include <QUrl>
#include <QVariantMap>
#include <QtQmlIntegration>

#include <chrono>

namespace vitrelle::ui {

class PortalPicker : public QObject {
  Q_OBJECT
  QML_ELEMENT

 public:
  explicit PortalPicker(QObject* parent = nullptr)
      : PortalPicker(QDBusConnection::sessionBus(), std::chrono::seconds(3), parent) {}
  /// A portal that says nothing for so long is none: starting one takes a moment, and one that
  /// waits for a part of itself that hangs takes half a minute.
  PortalPicker(QDBusConnection bus, std::chrono::milliseconds patience, QObject* parent = nullptr);
  ~PortalPicker() override { close(); }

  /// Exactly one signal follows, unless it is closed before. `kinds` names the files that are
  /// offered; the dialog begins in the folder, and belongs to the window.
  Q_INVOKABLE void open(QQuickWindow* window, const QString& title, const QString& kinds,
                        const QString& folder);
  /// The same for a file that is to be written, under this name if the user likes it. Whoever
  /// chooses one that is there already has said that it may be replaced.
  Q_INVOKABLE void save(QQuickWindow* window, const QString& title, const QString& kinds,
                        const QString& folder, const QString& fileName);
  /// The dialog goes. Nothing is told.
  Q_INVOKABLE void close();

 Q_SIGNALS:
  void accepted(const QUrl& file);
  void rejected();
  /// There is no such dialog here, or it failed: something else has to do.
  void unavailable();

 private:
  void ask(const QString& method, QQuickWindow* window, const QString& title, const QString& folder,
           QVariantMap options);
  Q_SLOT void takeAnswer(uint response, const QVariantMap& results);
  void follow(const QDBusPendingReply<QDBusObjectPath>& reply);
  void listenAt(const QString& request);
  void forgetRequest();
  void giveUp();

  QDBusConnection bus_;
  QDBusServiceWatcher owner_;
  QTimer patience_;
  QString request_; ///< object path of the open dialog's request; empty when none is
  int requests_ = 0;
};

} // namespace vitrelle::ui
