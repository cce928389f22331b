// The settings of the phone as QML sees them.
#pragma once

#include "core/centre/PhoneSettingsView.h"

#include <QList>
#include <QObject>
#include <QQmlEngine>
#include <QString>

namespace vitrelle::ui {

/// A phone in the list.
struct ListedPhone {
  Q_GADGET
  QML_VALUE_TYPE(listedPhone)
  Q_PROPERTY(QString name MEMBER name)
  Q_PROPERTY(int measured MEMBER measured)
  Q_PROPERTY(bool os18 MEMBER os18)
  Q_PROPERTY(bool chosen MEMBER chosen)

 public:
  QString name;
  int measured = 0; ///< a `PhoneScreen::Displays`
  bool os18 = false;
  bool chosen = false;
  bool operator==(const ListedPhone&) const = default;
};

class PhoneScreen : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("the shell makes it")
  Q_PROPERTY(QString name READ name NOTIFY changed)
  /// In which settings of its display there are measurements.
  Q_PROPERTY(Displays measured READ measured NOTIFY changed)
  Q_PROPERTY(bool os18 READ isOs18 WRITE setOs18 NOTIFY changed)
  /// The exact version, "17.2.1".
  Q_PROPERTY(QString os READ os NOTIFY changed)
  Q_PROPERTY(bool hasZoom READ hasZoom NOTIFY changed)
  Q_PROPERTY(bool zoomed READ isZoomed WRITE setZoomed NOTIFY changed)
  Q_PROPERTY(Appearance appearance READ appearance WRITE setAppearance NOTIFY changed)
  Q_PROPERTY(QString words READ words NOTIFY changed)
  Q_PROPERTY(QList<vitrelle::ui::ListedPhone> phones READ phones NOTIFY changed)
  /// Why the last change is not kept; empty where it is.
  Q_PROPERTY(QString trouble READ trouble NOTIFY changed)

 public:
  // QML wants its enumerators large.
  enum Displays { Neither = 0, Standard = 1, Zoomed = 2, Both = 3 }; // NOLINT
  Q_ENUM(Displays)
  enum Appearance { AsDesktop = 0, Light = 1, Dark = 2 }; // NOLINT
  Q_ENUM(Appearance)

  explicit PhoneScreen(const Platform& platform)
      : screen_(platform), view_(screen_.onChange([this] { Q_EMIT changed(); })) {}

  QString name() const { return QString::fromStdString(screen_.name()); }
  Displays measured() const { return static_cast<Displays>(screen_.measured()); }
  bool isOs18() const { return screen_.isOs18(); }
  void setOs18(bool os18) { screen_.setOs18(os18); }
  QString os() const {
    const OsVersion& os = screen_.choice().os;
    const QString text = QStringLiteral("%1.%2").arg(os.major).arg(os.minor);
    return os.patch == 0 ? text : text + QStringLiteral(".%1").arg(os.patch);
  }
  bool hasZoom() const { return screen_.hasZoom(); }
  bool isZoomed() const { return screen_.choice().zoomed; }
  void setZoomed(bool zoomed) { screen_.setZoomed(zoomed); }
  Appearance appearance() const { return static_cast<Appearance>(screen_.choice().appearance); }
  void setAppearance(Appearance appearance) {
    screen_.setAppearance(static_cast<AppearanceChoice>(appearance));
  }
  QString words() const { return QString::fromStdString(screen_.words()); }
  QList<ListedPhone> phones() const {
    QList<ListedPhone> phones;
    for (const PhoneLine& line : screen_.phones())
      phones += {QString::fromStdString(line.name), static_cast<int>(line.measured), line.os18,
                 line.chosen};
    return phones;
  }
  QString trouble() const {
    const auto& trouble = screen_.trouble();
    return trouble ? QString::fromStdString(trouble->what + ": " + trouble->why) : QString();
  }

  Q_INVOKABLE void search(const QString& words) { screen_.search(words.toStdString()); }
  Q_INVOKABLE void pick(int index) { screen_.pick(static_cast<std::size_t>(index)); }

 Q_SIGNALS:
  void changed();

 private:
  PhoneSettingsView screen_;
  Subscription view_;
};

} // namespace vitrelle::ui
