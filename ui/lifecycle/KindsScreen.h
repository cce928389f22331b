// The choice of a kind of style as QML sees it.
#pragma once

#include "core/lifecycle/StyleKinds.h"
#include "ui/lifecycle/StyleScreen.h"
#include "ui/parts/FaceItem.h"

#include <QList>
#include <QStringList>

#include <memory>
#include <utility>

namespace vitrelle::ui {

class KindsScreen : public vitrelle::ui::StyleScreen {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("the flow makes it")
  Q_PROPERTY(QStringList captions READ captions CONSTANT)
  /// The live samples, in the same order.
  Q_PROPERTY(QList<vitrelle::ui::Face> samples READ samples NOTIFY changed)
  /// The line below them; empty where there is none.
  Q_PROPERTY(QString foot READ foot CONSTANT)
  Q_PROPERTY(qreal sampleWidth READ sampleWidth NOTIFY changed)
  Q_PROPERTY(qreal sampleHeight READ sampleHeight NOTIFY changed)

 public:
  explicit KindsScreen(std::shared_ptr<StyleKinds> screen)
      : StyleScreen(screen->family(), "kinds"),
        screen_(std::move(screen)),
        view_(screen_->onChange([this] { Q_EMIT changed(); })) {}

  QStringList captions() const {
    QStringList captions;
    for (const StyleKind& kind : screen_->kinds())
      captions += qText(kind.caption);
    return captions;
  }
  QList<Face> samples() const {
    QList<Face> samples;
    for (const StyleKind& kind : screen_->kinds())
      samples += Face::of(screen_->sample(kind));
    return samples;
  }
  /// Without the platform's logo, which no face here has.
  QString foot() const {
    return qText(screen_->foot().value_or(FootLink{}).words).remove(QChar(0xF8FF));
  }
  /// When the screen has changed.
  Q_INVOKABLE void refresh() { Q_EMIT changed(); }
  Q_INVOKABLE void pressFoot() const { screen_->pressFoot(); }
  qreal sampleWidth() const { return screen_->sampleSize().width; }
  qreal sampleHeight() const { return screen_->sampleSize().height; }

 Q_SIGNALS:
  void changed();

 private:
  std::shared_ptr<StyleKinds> screen_;
  Subscription view_;
};

} // namespace vitrelle::ui
