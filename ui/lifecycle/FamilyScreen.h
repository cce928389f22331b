// The entry screen of a family as QML sees it.
#pragma once

#include "core/lifecycle/StyleEntry.h"
#include "ui/lifecycle/FamilyWords.h"
#include "ui/lifecycle/FlowScreen.h"

#include <QObject>
#include <QQmlEngine>

namespace vitrelle::ui {

class FamilyScreen : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("the shell makes it")
  Q_PROPERTY(vitrelle::ui::FamilyWords words READ words CONSTANT)
  /// What the sheet over it holds; null while there is none.
  Q_PROPERTY(vitrelle::ui::FlowScreen* flow READ flow NOTIFY changed)
  Q_PROPERTY(QString alertTitle READ alertTitle NOTIFY changed)
  Q_PROPERTY(QString alertMessage READ alertMessage NOTIFY changed)

 public:
  FamilyScreen(const Platform& platform, const StyleFamily& family)
      : platform_(platform),
        screen_(platform, family),
        view_(screen_.onChange([this] { follow(); })) {}
  ~FamilyScreen() override { delete flow_; }

  FamilyWords words() const { return FamilyWords(screen_.family().words()); }
  FlowScreen* flow() const { return flow_; }
  QString alertTitle() const { return qText(screen_.alert().value_or(Alert{}).title); }
  QString alertMessage() const { return qText(screen_.alert().value_or(Alert{}).message); }

  Q_INVOKABLE void appear() { screen_.appear(); }
  Q_INVOKABLE void tapCreate() { screen_.tapCreate(); }
  Q_INVOKABLE void tapGallery() { screen_.tapGallery(); }
  Q_INVOKABLE void tapPreview() { screen_.tapPreview(); }
  Q_INVOKABLE void dismissSheet() { screen_.dismissSheet(); }
  Q_INVOKABLE void dismissAlert() { screen_.dismissAlert(); }

 Q_SIGNALS:
  void changed();

 private:
  void follow() {
    if (flow_ != nullptr && !screen_.flow()) leaveToQml(std::exchange(flow_, nullptr));
    if (flow_ == nullptr && screen_.flow()) flow_ = new FlowScreen(platform_, screen_.flow());
    Q_EMIT changed();
  }

  const Platform& platform_;
  StyleEntry screen_;
  FlowScreen* flow_ = nullptr;
  Subscription view_;
};

} // namespace vitrelle::ui
