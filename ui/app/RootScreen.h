// The root screen as QML sees it.
#pragma once

#include "core/app/ModernContentView.h"
#include "core/centre/BannerAd.h"
#include "ui/app/StyleList.h"

#include <QObject>
#include <QQmlEngine>
#include <QString>

namespace vitrelle::ui {

class RootScreen final : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("the shell makes it")
  Q_PROPERTY(QString title READ title CONSTANT)
  Q_PROPERTY(QString createTitle READ createTitle CONSTANT)
  Q_PROPERTY(QString editTitle READ editTitle CONSTANT)
  Q_PROPERTY(QString alertTitle READ alertTitle CONSTANT)
  Q_PROPERTY(QString alertMessage READ alertMessage CONSTANT)
  Q_PROPERTY(vitrelle::ui::StyleList* styles READ styles CONSTANT)
  Q_PROPERTY(bool showsCards READ showsCards NOTIFY changed)
  Q_PROPERTY(bool showsCreateCard READ showsCreateCard NOTIFY changed)
  Q_PROPERTY(bool canBeChanged READ canBeChanged NOTIFY changed)
  Q_PROPERTY(bool launchWaits READ launchWaits NOTIFY changed)
  Q_PROPERTY(bool showingAlert READ showingAlert NOTIFY changed)
  Q_PROPERTY(qreal pageWidth READ pageWidth NOTIFY pagerMoved)
  Q_PROPERTY(qreal pageSpacing READ pageSpacing CONSTANT)
  Q_PROPERTY(qreal minimumDragDistance READ minimumDragDistance CONSTANT)
  /// How far right of the screen's middle the pages' middle is drawn, in points.
  Q_PROPERTY(qreal pagerOffset READ pagerOffset NOTIFY pagerMoved)
  Q_PROPERTY(bool dragging READ isDragging NOTIFY pagerMoved)
  Q_PROPERTY(int page READ page NOTIFY pagerMoved)
  Q_PROPERTY(int pageCount READ pageCount NOTIFY pagerMoved)

 public:
  explicit RootScreen(const Platform& platform);

  QString title() const { return text(ModernContentView::title); }
  QString createTitle() const { return text(ModernContentView::createTitle); }
  QString editTitle() const { return text(ModernContentView::editTitle); }
  QString alertTitle() const { return text(ModernContentView::alertTitle); }
  QString alertMessage() const { return text(ModernContentView::alertMessage); }
  StyleList* styles() { return &styles_; }
  bool showsCards() const { return screen_.showsCards(); }
  bool showsCreateCard() const { return screen_.showsCreateCard(); }
  bool canBeChanged() const { return screen_.canBeChanged(); }
  bool launchWaits() const { return screen_.launchWaits(); }
  bool showingAlert() const { return screen_.showingAlert(); }
  qreal pageWidth() const { return screen_.pageWidth(); }
  qreal pageSpacing() const { return ModernContentView::pageSpacing; }
  qreal minimumDragDistance() const { return ScrollingHStackModifier::minimumDragDistance; }
  qreal pagerOffset() const { return pager_.offset(); }
  bool isDragging() const { return dragging_; }
  int page() const { return static_cast<int>(pager_.page()); }
  int pageCount() const { return static_cast<int>(pager_.items()); }

  /// Whether the start is one that decides about the launch.
  Q_INVOKABLE void appear(bool launches);
  Q_INVOKABLE void contentAppear() { screen_.contentAppear(); }
  Q_INVOKABLE void select(int styleNumber) { screen_.selectConfig({styleNumber}); }
  Q_INVOKABLE bool openWidgetCentre() { return screen_.openWidgetCentre(); }
  Q_INVOKABLE void dismissAlert() { screen_.dismissAlert(); }
  Q_INVOKABLE void drag(qreal translation);
  Q_INVOKABLE void endDrag(qreal translation);
  Q_INVOKABLE void showPage(int page);
  /// The page of a style, if there is one.
  Q_INVOKABLE void showStyle(int styleNumber);

 Q_SIGNALS:
  void changed();
  void pagerMoved();

 private:
  static QString text(std::string_view words) {
    return QString::fromUtf8(words.data(), static_cast<qsizetype>(words.size()));
  }
  void update();
  /// When the pages, or the screen under them, are others.
  void layPagesOut();

  const Platform& platform_;
  ModernContentView screen_;
  StyleList styles_{screen_};
  ScrollingHStackModifier pager_;
  bool dragging_ = false;
  Subscription view_, reloads_, phones_;
};

} // namespace vitrelle::ui
