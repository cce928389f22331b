// Puts the screens of the logic, the QML that draws them and the window together.
#pragma once

#include "core/platform/Platform.h"
#include "ui/app/Navigator.h"
#include "ui/app/RootScreen.h"
#include "ui/centre/LocationAnswer.h"
#include "ui/centre/ReviewAnswer.h"
#include "ui/centre/WidgetSettingsScreen.h"
#include "ui/parts/Notices.h"
#include "ui/parts/Surroundings.h"
#include "ui/pickers/FontScreen.h"
#include "ui/pickers/SymbolScreen.h"

#include <QObject>
#include <QQmlApplicationEngine>
#include <QQuickWindow>
#include <QString>

namespace vitrelle::ui {

struct ShellOptions {
  QString screen;     ///< type name of the screen to open; empty for the root
  bool framed = true; ///< the phone's frame around the screen
  bool animated = true;
  bool launches = true; ///< whether the root decides about the launch
};

/// What QML sees of the program: the one object that screens begin at.
class Shell final : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_SINGLETON
  Q_PROPERTY(QString screen READ screen CONSTANT)
  Q_PROPERTY(bool launches READ isLaunch CONSTANT)
  Q_PROPERTY(vitrelle::ui::RootScreen* root READ root CONSTANT)
  Q_PROPERTY(vitrelle::ui::LocationAnswer* locationQuestion READ locationQuestion CONSTANT)
  Q_PROPERTY(vitrelle::ui::ReviewAnswer* reviewQuestion READ reviewQuestion CONSTANT)
  Q_PROPERTY(vitrelle::ui::Navigator* navigator READ navigator CONSTANT)
  /// Whether a picture lies in the clipboard.
  Q_PROPERTY(bool canPaste READ canPaste NOTIFY canPasteChanged)

 public:
  /// The platform must outlive it.
  Shell(const Platform& platform, ShellOptions options);
  ~Shell() override;

  /// For the QML engine, which asks for the one that made it.
  static Shell* create(QQmlEngine* engine, QJSEngine*);

  /// The names that `ShellOptions::screen` may have.
  static QStringList screenNames();

  /// Builds the window and shows it; false when the QML is damaged.
  bool open();
  QQuickWindow* window() const { return window_; }
  Surroundings& surroundings() { return surroundings_; }
  Notices& notices() { return notices_; }
  void raise();

  QString screen() const { return options_.screen; }
  bool isLaunch() const { return options_.launches; }
  RootScreen* root() { return &root_; }
  LocationAnswer* locationQuestion() { return &locationQuestion_; }
  ReviewAnswer* reviewQuestion() { return &reviewQuestion_; }
  Navigator* navigator() { return &navigator_; }
  bool canPaste() const;

  /// Whether a screen is there; nothing leads to one that is not.
  Q_INVOKABLE bool hasScreen(const QString& name) const { return screenNames().contains(name); }
  /// The QML owns what it gets.
  Q_INVOKABLE vitrelle::ui::FontScreen* fonts() const { return new FontScreen(platform_); }
  Q_INVOKABLE vitrelle::ui::WidgetSettingsScreen* widgetSettings() const {
    return new WidgetSettingsScreen(platform_);
  }
  /// Over the key of a picker that has one of its own, by the picker's type name.
  Q_INVOKABLE vitrelle::ui::FontScreen* storedFonts(const QString& picker) const {
    return new FontScreen(platform_, storedFont(picker.toStdString()));
  }
  Q_INVOKABLE vitrelle::ui::SymbolScreen* symbols() const { return new SymbolScreen(platform_); }
  /// Opens the page on which a user rates the program; false where none is set.
  Q_INVOKABLE bool openReview() const;
  /// Where the choosing of a picture begins.
  Q_INVOKABLE QString pictureFolder() const;
  /// Lets the next choosing begin where this file lies.
  Q_INVOKABLE void rememberPicture(const QUrl& file) const;

 Q_SIGNALS:
  void canPasteChanged();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  const Platform& platform_;
  const ShellOptions options_;
  Surroundings surroundings_;
  Notices notices_;
  LocationAnswer locationQuestion_;
  ReviewAnswer reviewQuestion_;
  Navigator navigator_;
  RootScreen root_;
  QQuickWindow* window_ = nullptr; ///< the engine's
  QQmlApplicationEngine engine_;   ///< last, for its objects use all others
};

} // namespace vitrelle::ui
