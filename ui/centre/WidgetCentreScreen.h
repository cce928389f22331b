// The hub as QML sees it.
#pragma once

#include "core/centre/ModernWidgetCentre.h"
#include "ui/centre/ExportScreen.h"
#include "ui/parts/QtText.h"

#include <QColor>
#include <QList>
#include <QObject>
#include <QQmlEngine>

namespace vitrelle::ui {

struct Tile {
  Q_GADGET
  QML_VALUE_TYPE(hubTile)
  Q_PROPERTY(QString text MEMBER text CONSTANT)
  Q_PROPERTY(QString symbol MEMBER symbol CONSTANT)
  Q_PROPERTY(QColor colour MEMBER colour CONSTANT)

 public:
  QString text;
  QString symbol;
  QColor colour;
  bool operator==(const Tile&) const = default;
};

class WidgetCentreScreen : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("the shell makes it")
  Q_PROPERTY(QString title READ title CONSTANT)
  Q_PROPERTY(QString symbol READ symbol CONSTANT)
  Q_PROPERTY(bool list READ isList NOTIFY changed)
  Q_PROPERTY(QList<vitrelle::ui::Tile> tiles READ tiles NOTIFY tilesChanged)
  Q_PROPERTY(qreal padding READ padding NOTIFY changed)
  Q_PROPERTY(qreal iconSide READ iconSide CONSTANT)
  Q_PROPERTY(qreal tileSpacing READ tileSpacing CONSTANT)
  Q_PROPERTY(bool showSettings READ showsSettings NOTIFY changed)
  Q_PROPERTY(bool showExport READ showsExport NOTIFY changed)
  /// The wallpaper style in use; -1 where none is.
  Q_PROPERTY(int selectedStyle READ selectedStyle NOTIFY changed)

 public:
  explicit WidgetCentreScreen(const Platform& platform)
      : platform_(platform),
        screen_(platform),
        tiles_(made()),
        view_(screen_.onChange([this] { follow(); })) {}

  QString title() const { return qText(ModernWidgetCentre::title); }
  QString symbol() const { return qText(ModernWidgetCentre::symbol); }
  bool isList() const { return screen_.isList(); }
  const QList<Tile>& tiles() const { return tiles_; }
  qreal padding() const { return screen_.padding(); }
  qreal iconSide() const { return ModernWidgetCentre::iconSide; }
  qreal tileSpacing() const { return ModernWidgetCentre::tileSpacing; }
  bool showsSettings() const { return screen_.showSettings(); }
  bool showsExport() const { return screen_.showExport(); }
  int selectedStyle() const { return static_cast<int>(screen_.selectedConfig().value_or(-1)); }

  Q_INVOKABLE void appear() const { screen_.appear(); }
  /// The screen that it leads to; empty where it is none.
  Q_INVOKABLE QString tap(int index);
  Q_INVOKABLE void dismissSheet() { screen_.dismissSheet(); }
  /// The QML owns what it gets.
  Q_INVOKABLE vitrelle::ui::ExportScreen* slices() const { return new ExportScreen(platform_); }

 Q_SIGNALS:
  void changed();
  void tilesChanged();

 private:
  QList<Tile> made() const;
  void follow();

  const Platform& platform_;
  ModernWidgetCentre screen_;
  QList<Tile> tiles_;
  Subscription view_;
};

} // namespace vitrelle::ui
