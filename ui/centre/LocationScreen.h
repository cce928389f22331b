// The settings of the user's position as QML sees them.
#pragma once

#include "core/centre/LocationSettingsView.h"
#include "ui/parts/QtText.h"

#include <QObject>
#include <QQmlEngine>
#include <QStringList>

namespace vitrelle::ui {

class LocationScreen : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("the shell makes it")
  Q_PROPERTY(Permission permission READ permission WRITE setPermission NOTIFY changed)
  Q_PROPERTY(Source source READ source WRITE setSource NOTIFY changed)
  Q_PROPERTY(bool hasDesktopService READ hasDesktopService NOTIFY changed)
  /// The fixed place; empty where none was picked.
  Q_PROPERTY(QString city READ city NOTIFY changed)
  Q_PROPERTY(QString words READ words NOTIFY changed)
  Q_PROPERTY(QStringList found READ found NOTIFY changed)
  Q_PROPERTY(bool unknown READ isUnknown NOTIFY changed)
  /// Why something could not be done; empty where everything could.
  Q_PROPERTY(QString trouble READ trouble NOTIFY changed)

 public:
  // QML wants its enumerators large.
  enum Permission { Unasked = 0, Never = 2, Always = 3, WhenInUse = 4 }; // NOLINT
  Q_ENUM(Permission)
  enum Source { Nowhere = 0, Desktop = 1, FixedPlace = 2 }; // NOLINT
  Q_ENUM(Source)

  explicit LocationScreen(const Platform& platform)
      : screen_(platform), view_(screen_.onChange([this] { Q_EMIT changed(); })) {}

  Permission permission() const { return static_cast<Permission>(screen_.choice().permission); }
  void setPermission(Permission permission) {
    screen_.setPermission(static_cast<AuthorizationStatus>(permission));
  }
  Source source() const { return static_cast<Source>(screen_.choice().source); }
  void setSource(Source source) { screen_.setSource(static_cast<LocationSource>(source)); }
  bool hasDesktopService() const { return screen_.hasDesktopService(); }
  QString city() const { return screen_.choice().city ? name(*screen_.choice().city) : QString(); }
  QString words() const { return QString::fromStdString(screen_.words()); }
  QStringList found() const {
    QStringList names;
    for (const City& city : screen_.found())
      names += name(city);
    return names;
  }
  bool isUnknown() const { return screen_.isUnknown(); }
  QString trouble() const {
    const auto& trouble = screen_.trouble();
    return trouble ? QString::fromStdString(trouble->what + ": " + trouble->why) : QString();
  }

  Q_INVOKABLE void search(const QString& words) { screen_.search(words.toStdString()); }
  Q_INVOKABLE void pick(int index) { screen_.pick(static_cast<std::size_t>(index)); }

 Q_SIGNALS:
  void changed();

 private:
  static QString name(const City& city) {
    const std::string name = city.country.empty() ? city.name : city.name + ", " + city.country;
    return QString::fromStdString(name);
  }

  LocationSettingsView screen_;
  Subscription view_;
};

} // namespace vitrelle::ui
