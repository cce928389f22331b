// The settings that all widgets share as QML sees them.
#pragma once

#include "core/centre/WidgetSettingsView.h"
#include "ui/parts/QtText.h"

#include <QObject>
#include <QQmlEngine>
#include <QStringList>

namespace vitrelle::ui {

class WidgetSettingsScreen : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("the shell makes it")
  Q_PROPERTY(QString title READ title CONSTANT)
  Q_PROPERTY(QString symbol READ symbol CONSTANT)
  /// Of what testers are told; empty where they are told nothing.
  Q_PROPERTY(QString betaNote READ betaNote CONSTANT)
  Q_PROPERTY(QString betaSymbol READ betaSymbol CONSTANT)
  Q_PROPERTY(QString quitTitle READ quitTitle CONSTANT)
  Q_PROPERTY(bool quitBlocked READ isQuitBlocked CONSTANT)
  Q_PROPERTY(bool quit READ quits WRITE setQuits NOTIFY changed)
  Q_PROPERTY(QString unitTitle READ unitTitle CONSTANT)
  Q_PROPERTY(QStringList units READ units CONSTANT)
  /// Which of the units.
  Q_PROPERTY(int unit READ unit WRITE setUnit NOTIFY changed)
  Q_PROPERTY(QString refreshTitle READ refreshTitle CONSTANT)
  Q_PROPERTY(QString refreshSymbol READ refreshSymbol CONSTANT)

 public:
  explicit WidgetSettingsScreen(const Platform& platform)
      : screen_(platform), view_(screen_.onChange([this] { Q_EMIT changed(); })) {}

  QString title() const { return qText(WidgetSettingsView::title); }
  QString symbol() const { return qText(WidgetSettingsView::symbol); }
  QString betaNote() const {
    return screen_.isQuitBlocked() ? qText(WidgetSettingsView::betaNote) : QString();
  }
  QString betaSymbol() const { return qText(WidgetSettingsView::betaSymbol); }
  QString quitTitle() const { return qText(WidgetSettingsView::quitTitle); }
  bool isQuitBlocked() const { return screen_.isQuitBlocked(); }
  bool quits() const { return screen_.quitIfWidgetClicked(); }
  void setQuits(bool quit) { screen_.setQuitIfWidgetClicked(quit); }
  QString unitTitle() const { return qText(WidgetSettingsView::unitTitle); }
  QStringList units() const {
    return {qText(WidgetSettingsView::units[0]), qText(WidgetSettingsView::units[1])};
  }
  int unit() const { return screen_.weatherTempFormat() ? 1 : 0; }
  void setUnit(int unit) { screen_.setWeatherTempFormat(unit == 1); }
  QString refreshTitle() const { return qText(WidgetSettingsView::refreshTitle); }
  QString refreshSymbol() const { return qText(WidgetSettingsView::refreshSymbol); }

  Q_INVOKABLE void refreshWidgets() const { screen_.refreshWidgets(); }

 Q_SIGNALS:
  void changed();

 private:
  WidgetSettingsView screen_;
  Subscription view_;
};

} // namespace vitrelle::ui
