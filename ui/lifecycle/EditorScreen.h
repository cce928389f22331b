// A step of a family's editor as QML sees it: a form, the look of the draft, and the colours that
// go with the wallpaper.
#pragma once

#include "core/lifecycle/StyleSecond.h"
#include "ui/forms/FormModel.h"
#include "ui/lifecycle/StyleScreen.h"
#include "ui/parts/FaceItem.h"

#include <QByteArray>
#include <QColor>
#include <QUrl>

#include <memory>

namespace vitrelle::ui {

class EditorScreen : public vitrelle::ui::StyleScreen {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("the flow makes it")
  Q_PROPERTY(bool isSecond READ isSecond CONSTANT)
  Q_PROPERTY(vitrelle::ui::FormModel* form READ form CONSTANT)
  Q_PROPERTY(vitrelle::ui::Face face READ face NOTIFY changed)
  Q_PROPERTY(vitrelle::ui::BackdropName backdrop READ backdrop NOTIFY changed)
  Q_PROPERTY(qreal previewWidth READ previewWidth NOTIFY changed)
  Q_PROPERTY(qreal previewHeight READ previewHeight NOTIFY changed)
  /// What the sheet over the form picks, "font" or "symbol"; empty while there is none.
  Q_PROPERTY(QString sheet READ sheet NOTIFY changed)
  Q_PROPERTY(QString sheetValue READ sheetValue NOTIFY changed)
  /// Whether pictures can be pasted and dropped here.
  Q_PROPERTY(bool takesPictures READ takesPictures CONSTANT)
  /// Of the second step.
  Q_PROPERTY(bool hasSuggestions READ hasSuggestions CONSTANT)
  Q_PROPERTY(bool hasSuggestionsHint READ hasSuggestionsHint CONSTANT)
  Q_PROPERTY(bool suggestionsLoaded READ suggestionsLoaded NOTIFY changed)
  Q_PROPERTY(QList<QColor> suggestedColours READ suggestedColours NOTIFY changed)

 public:
  EditorScreen(const Platform& platform, std::shared_ptr<StyleEditor> screen);

  bool isSecond() const { return screen_->step() == EditorStep::second; }
  FormModel* form() { return &form_; }
  Face face() const { return Face::of(screen_->face(mediumPreviewSize(platform_))); }
  BackdropName backdrop() const { return BackdropName::of(screen_->img()); }
  qreal previewWidth() const { return mediumPreviewSize(platform_).width; }
  qreal previewHeight() const { return mediumPreviewSize(platform_).height; }
  QString sheet() const;
  QString sheetValue() const;
  bool takesPictures() const { return screen_->takesPictures(); }
  bool hasSuggestions() const { return second_ != nullptr && second_->suggesting().has_value(); }
  bool hasSuggestionsHint() const { return hasSuggestions() && second_->suggesting()->hasHint; }
  bool suggestionsLoaded() const { return second_ != nullptr && second_->suggestions().loaded(); }
  QList<QColor> suggestedColours() const;

  Q_INVOKABLE void appear() { screen_->appear(); }
  /// When the appearance or the screen has changed.
  Q_INVOKABLE void takeSlice() { screen_->takeSlice(); }
  /// When the screen has come to rest.
  Q_INVOKABLE void settle();
  Q_INVOKABLE void dismissSheet() { screen_->dismissSheet(); }
  /// The picture in the clipboard.
  Q_INVOKABLE void paste() { screen_->paste(); }
  /// One that is dropped, as a file or as the bytes of one. Why it was not taken, if it was not.
  Q_INVOKABLE QString takeFile(const QUrl& file);
  Q_INVOKABLE QString takeBytes(const QByteArray& bytes);
  /// What was picked on the sheet.
  Q_INVOKABLE void pick(const QString& value);

 Q_SIGNALS:
  void changed();

 private:
  QString take(const Result<Image>& picture);

  const Platform& platform_;
  std::shared_ptr<StyleEditor> screen_;
  StyleSecond* second_; ///< the same, if it is one
  FormModel form_;
  bool settled_ = false;
  Subscription view_;
};

} // namespace vitrelle::ui
