// The entry screen of a family as QML sees it.
#pragma once

#include "core/faces/FamilyScreens.h"
#include "ui/lifecycle/EditorScreen.h"
#include "ui/lifecycle/FamilyWords.h"
#include "ui/lifecycle/GalleryScreen.h"
#include "ui/lifecycle/PreviewScreen.h"

#include <QObject>
#include <QQmlEngine>

#include <memory>

namespace vitrelle::ui {

class FamilyScreen : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("the shell makes it")
  Q_PROPERTY(vitrelle::ui::FamilyWords words READ words CONSTANT)
  Q_PROPERTY(bool hasEditor READ hasEditor CONSTANT)
  Q_PROPERTY(bool showCreate READ showCreate NOTIFY changed)
  Q_PROPERTY(bool showGallery READ showGallery NOTIFY changed)
  Q_PROPERTY(bool showPreview READ showPreview NOTIFY changed)
  Q_PROPERTY(QString alertTitle READ alertTitle NOTIFY changed)
  Q_PROPERTY(QString alertMessage READ alertMessage NOTIFY changed)

 public:
  FamilyScreen(const Platform& platform, const FamilyScreens& family)
      : platform_(platform),
        family_(family),
        screen_(family.entry(platform)),
        view_(screen_->onChange([this] { Q_EMIT changed(); })) {}

  FamilyWords words() const { return FamilyWords(screen_->words()); }
  bool hasEditor() const { return screen_->hasEditor(); }
  bool showCreate() const { return screen_->showCreate(); }
  bool showGallery() const { return screen_->showGallery(); }
  bool showPreview() const { return screen_->showPreview(); }
  QString alertTitle() const { return qText(screen_->alert().value_or(Alert{}).title); }
  QString alertMessage() const { return qText(screen_->alert().value_or(Alert{}).message); }

  Q_INVOKABLE void appear() { screen_->appear(); }
  Q_INVOKABLE void tapCreate() { screen_->tapCreate(); }
  Q_INVOKABLE void tapGallery() { screen_->tapGallery(); }
  Q_INVOKABLE void tapPreview() { screen_->tapPreview(); }
  Q_INVOKABLE void dismissSheet() { screen_->dismissSheet(); }
  Q_INVOKABLE void dismissAlert() { screen_->dismissAlert(); }
  /// The screens that it leads to, for QML to own.
  Q_INVOKABLE vitrelle::ui::EditorScreen* create() const {
    return new EditorScreen(platform_, family_, {});
  }
  /// Of the first style, as if it had been come to by the gallery.
  Q_INVOKABLE vitrelle::ui::EditorScreen* secondStep() const {
    return EditorScreen(platform_, family_, {EditorMode::edit, 0}).next();
  }
  Q_INVOKABLE vitrelle::ui::AssignScreen* assign() const {
    return new AssignScreen(platform_, family_, 0);
  }
  Q_INVOKABLE vitrelle::ui::GalleryScreen* gallery() const {
    return new GalleryScreen(platform_, family_);
  }
  Q_INVOKABLE vitrelle::ui::PreviewScreen* preview() const {
    return new PreviewScreen(platform_, family_);
  }

 Q_SIGNALS:
  void changed();

 private:
  const Platform& platform_;
  const FamilyScreens& family_;
  std::unique_ptr<StyleEntry> screen_;
  Subscription view_;
};

} // namespace vitrelle::ui
