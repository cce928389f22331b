// The gallery of a family as QML sees it.
#pragma once

#include "core/faces/FamilyScreens.h"
#include "ui/lifecycle/AssignScreen.h"
#include "ui/lifecycle/EditorScreen.h"
#include "ui/lifecycle/FamilyWords.h"
#include "ui/lifecycle/TileList.h"

#include <QObject>
#include <QQmlEngine>

#include <memory>

namespace vitrelle::ui {

class GalleryScreen : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("the family makes it")
  Q_PROPERTY(vitrelle::ui::FamilyWords words READ words CONSTANT)
  Q_PROPERTY(bool hasEditor READ hasEditor CONSTANT)
  Q_PROPERTY(vitrelle::ui::TileList* tiles READ tiles CONSTANT)
  /// What stands in the tiles' place; empty when they are there.
  Q_PROPERTY(QString placeholder READ placeholder NOTIFY changed)
  Q_PROPERTY(int revision READ revision NOTIFY changed)
  Q_PROPERTY(int columns READ columns CONSTANT)
  Q_PROPERTY(qreal tileSide READ tileSide CONSTANT)
  Q_PROPERTY(qreal spacing READ spacing CONSTANT)
  Q_PROPERTY(qreal tickSize READ tickSize CONSTANT)
  Q_PROPERTY(bool showEdit READ showEdit NOTIFY changed)
  Q_PROPERTY(bool showAssignSheet READ showAssignSheet NOTIFY changed)

 public:
  GalleryScreen(const Platform& platform, const FamilyScreens& family);

  FamilyWords words() const { return FamilyWords(screen_->words()); }
  bool hasEditor() const { return family_.hasEditor(); }
  TileList* tiles() { return &tiles_; }
  QString placeholder() const { return qText(screen_->placeholder().value_or("")); }
  int revision() const { return revision_; }
  static int columns() { return StyleGallery::columns; }
  qreal tileSide() const { return screen_->tileSide(); }
  qreal spacing() const { return screen_->spacing(); }
  static qreal tickSize() { return StyleGallery::tickSize; }
  bool showEdit() const { return screen_->showEdit(); }
  bool showAssignSheet() const { return screen_->showAssignSheet(); }

  Q_INVOKABLE void appear() {
    ++revision_;
    screen_->appear();
  }
  Q_INVOKABLE void tapTick(int index) { screen_->tapTick(static_cast<std::size_t>(index)); }
  Q_INVOKABLE void tapEdit(int index) { screen_->tapEdit(static_cast<std::size_t>(index)); }
  Q_INVOKABLE void tapAssign(int index) { screen_->tapAssign(static_cast<std::size_t>(index)); }
  Q_INVOKABLE void dismissEdit() { screen_->dismissEdit(); }
  Q_INVOKABLE void dismissAssign() { screen_->dismissAssign(); }
  /// The screens of the tile whose item was tapped, for QML to own.
  Q_INVOKABLE vitrelle::ui::EditorScreen* editor() const;
  Q_INVOKABLE vitrelle::ui::AssignScreen* assign() const;

 Q_SIGNALS:
  void changed();

 private:
  const Platform& platform_;
  const FamilyScreens& family_;
  std::unique_ptr<StyleGallery> screen_;
  TileList tiles_;
  int revision_ = 0; ///< of the pictures
  Subscription view_;
};

} // namespace vitrelle::ui
