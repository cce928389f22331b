// The screen that takes slices out of the system, as QML sees it.
#pragma once

#include "core/centre/ModernImageExportView.h"
#include "ui/parts/QtText.h"
#include "ui/share/SharedItem.h"

#include <QObject>
#include <QQmlEngine>
#include <QStringList>
#include <QVariantList>

namespace vitrelle::ui {

class ExportScreen : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("the shell makes it")
  Q_PROPERTY(QString title READ title CONSTANT)
  Q_PROPERTY(QString symbol READ symbol CONSTANT)
  Q_PROPERTY(QString styleHeading READ styleHeading CONSTANT)
  Q_PROPERTY(QString styleLabel READ styleLabel CONSTANT)
  Q_PROPERTY(QString appearanceHeading READ appearanceHeading CONSTANT)
  Q_PROPERTY(QString appearanceLabel READ appearanceLabel CONSTANT)
  Q_PROPERTY(QString sizeHeading READ sizeHeading CONSTANT)
  Q_PROPERTY(QString sizeLabel READ sizeLabel CONSTANT)
  Q_PROPERTY(QStringList appearances READ appearances CONSTANT)
  Q_PROPERTY(QStringList sizes READ sizes CONSTANT)
  /// How many there are.
  Q_PROPERTY(int styles READ styles NOTIFY changed)
  Q_PROPERTY(int selection READ selection WRITE select NOTIFY changed)
  Q_PROPERTY(int lightDark READ lightDark WRITE setLightDark NOTIFY changed)
  Q_PROPERTY(int widgetSize READ widgetSize WRITE setWidgetSize NOTIFY changed)
  /// The stems of the slots, a list for each row.
  Q_PROPERTY(QVariantList rows READ rows NOTIFY rowsChanged)
  Q_PROPERTY(qreal previewWidth READ previewWidth NOTIFY changed)
  Q_PROPERTY(qreal previewHeight READ previewHeight NOTIFY changed)
  Q_PROPERTY(qreal rowSpacing READ rowSpacing NOTIFY changed)
  /// Of the pictures, which other processes may replace.
  Q_PROPERTY(int revision READ revision NOTIFY changed)
  Q_PROPERTY(bool sheetShown READ isSheetShown NOTIFY changed)
  /// What the sheet shares; nothing where it can't be read.
  Q_PROPERTY(vitrelle::ui::SharedItem shared READ shared NOTIFY changed)

 public:
  explicit ExportScreen(const Platform& platform);

  static QString title() { return qText(ModernImageExportView::title); }
  static QString symbol() { return qText(ModernImageExportView::symbol); }
  static QString styleHeading() { return qText(ModernImageExportView::styleChooser.heading); }
  static QString styleLabel() { return qText(ModernImageExportView::styleChooser.label); }
  static QString appearanceHeading() {
    return qText(ModernImageExportView::appearanceChooser.heading);
  }
  static QString appearanceLabel() { return qText(ModernImageExportView::appearanceChooser.label); }
  static QString sizeHeading() { return qText(ModernImageExportView::sizeChooser.heading); }
  static QString sizeLabel() { return qText(ModernImageExportView::sizeChooser.label); }
  static QStringList appearances() { return texts(ModernImageExportView::appearances); }
  static QStringList sizes() { return texts(ModernImageExportView::sizes); }
  int styles() const { return static_cast<int>(screen_.configAmounts()); }
  int selection() const { return static_cast<int>(screen_.selection()); }
  void select(int style) { screen_.select(style); }
  int lightDark() const { return static_cast<int>(screen_.lightDark()); }
  void setLightDark(int lightDark) { screen_.setLightDark(lightDark); }
  int widgetSize() const { return static_cast<int>(screen_.widgetSize()); }
  void setWidgetSize(int size) { screen_.setWidgetSize(size); }
  QVariantList rows() const { return rows_; }
  qreal previewWidth() const { return screen_.previewSize().width; }
  qreal previewHeight() const { return screen_.previewSize().height; }
  qreal rowSpacing() const { return screen_.rowSpacing(); }
  int revision() const { return revision_; }
  bool isSheetShown() const { return sheetShown_; }
  const SharedItem& shared() const { return shared_; }

  Q_INVOKABLE void tap(const QString& stem) { screen_.tap(stem.toStdString()); }
  Q_INVOKABLE void dismissSheet() { screen_.dismissSheet(); }

 Q_SIGNALS:
  void changed();
  void rowsChanged();

 private:
  static QStringList texts(std::span<const std::string_view> words) {
    QStringList texts;
    for (const std::string_view word : words)
      texts += qText(word);
    return texts;
  }
  void follow();

  ModernImageExportView screen_;
  QVariantList rows_;
  bool sheetShown_ = false;
  SharedItem shared_;
  int revision_ = 0;
  Subscription view_, reloads_, phones_;
};

} // namespace vitrelle::ui
