// A step of a family's editor as QML sees it: a form, the look of the record, and the way on.
#pragma once

#include "core/faces/FamilyScreens.h"
#include "ui/lifecycle/FamilyWords.h"
#include "ui/lifecycle/FormModel.h"
#include "ui/parts/FaceItem.h"

#include <QColor>
#include <QObject>
#include <QQmlEngine>

#include <memory>

namespace vitrelle::ui {

class EditorScreen : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("the screen before makes it")
  Q_PROPERTY(vitrelle::ui::FormModel* form READ form CONSTANT)
  Q_PROPERTY(vitrelle::ui::Face face READ face NOTIFY changed)
  Q_PROPERTY(vitrelle::ui::BackdropName backdrop READ backdrop NOTIFY changed)
  Q_PROPERTY(qreal previewWidth READ previewWidth CONSTANT)
  Q_PROPERTY(qreal previewHeight READ previewHeight CONSTANT)
  /// Of the second step.
  Q_PROPERTY(bool hasSuggestions READ hasSuggestions CONSTANT)
  Q_PROPERTY(bool hasSuggestionsHint READ hasSuggestionsHint CONSTANT)
  Q_PROPERTY(bool suggestionsLoaded READ suggestionsLoaded NOTIFY changed)
  Q_PROPERTY(QList<QColor> suggestedColours READ suggestedColours NOTIFY changed)

 public:
  /// The first step.
  EditorScreen(const Platform& platform, const FamilyScreens& family, const EditorTask& task);

  FormModel* form() { return &form_; }
  Face face() const { return Face::of(screen_.face(previewSize_)); }
  BackdropName backdrop() const { return BackdropName::of(screen_.img()); }
  qreal previewWidth() const { return previewSize_.width; }
  qreal previewHeight() const { return previewSize_.height; }
  bool hasSuggestions() const { return second_ && second_->suggesting().has_value(); }
  bool hasSuggestionsHint() const { return hasSuggestions() && second_->suggesting()->hasHint; }
  bool suggestionsLoaded() const { return second_ && second_->suggestions().loaded(); }
  QList<QColor> suggestedColours() const;

  Q_INVOKABLE void appear() { screen_.appear(); }
  /// When the screen has come to rest.
  Q_INVOKABLE void settle();
  /// Whether it was stored.
  Q_INVOKABLE bool save() { return screen_.save(); }
  /// The step after the first, for QML to own.
  Q_INVOKABLE vitrelle::ui::EditorScreen* next() const;

 Q_SIGNALS:
  void changed();

 private:
  EditorScreen(const Platform& platform, std::unique_ptr<StyleFirstStep> first,
               std::unique_ptr<StyleSecondStep> second);

  const Platform& platform_;
  std::unique_ptr<StyleFirstStep> first_; ///< one of the two
  std::unique_ptr<StyleSecondStep> second_;
  StyleEditor& screen_; ///< which it is
  PointSize previewSize_;
  FormModel form_;
  bool settled_ = false;
  Subscription view_;
};

} // namespace vitrelle::ui
