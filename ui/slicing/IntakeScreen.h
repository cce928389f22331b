// The screens that take a style's screenshots in, as QML sees them.
#pragma once

#include "core/slicing/ScreenshotPhones.h"
#include "core/slicing/WallpaperIntake.h"

#include <QList>
#include <QObject>
#include <QQmlEngine>
#include <QString>
#include <QUrl>

#include <memory>

namespace vitrelle::ui {

class Notices;

/// Phones that a screenshot may be from and that need not be told apart.
struct ScreenshotPhones {
  Q_GADGET
  QML_VALUE_TYPE(screenshotPhones)
  Q_PROPERTY(QString name MEMBER name)
  Q_PROPERTY(QString note MEMBER note)

 public:
  QString name; ///< of the first
  QString note; ///< the others
  bool operator==(const ScreenshotPhones&) const = default;
};

class IntakeScreen final : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("the shell makes it")
  Q_PROPERTY(QString title READ title CONSTANT)
  Q_PROPERTY(QString back READ back CONSTANT)
  Q_PROPERTY(QString hint READ hint CONSTANT)
  Q_PROPERTY(QString noImage READ noImage CONSTANT)
  Q_PROPERTY(QString lightTitle READ lightTitle CONSTANT)
  Q_PROPERTY(QString darkTitle READ darkTitle CONSTANT)
  Q_PROPERTY(QString lightSymbol READ lightSymbol CONSTANT)
  Q_PROPERTY(QString darkSymbol READ darkSymbol CONSTANT)
  Q_PROPERTY(int styleNumber READ styleNumber NOTIFY changed)
  Q_PROPERTY(int revision READ revision NOTIFY changed)
  /// Whether a picture is set for the appearance.
  Q_PROPERTY(bool lightSet READ isLightSet NOTIFY changed)
  Q_PROPERTY(bool darkSet READ isDarkSet NOTIFY changed)
  Q_PROPERTY(bool pickerOpen READ isPickerOpen NOTIFY changed)
  /// Type name of the screen on the sheet that is open; empty when none is, or the picker.
  Q_PROPERTY(QString sheet READ sheet NOTIFY changed)
  /// Whether the user is asked about a screenshot of another phone's size.
  Q_PROPERTY(bool asking READ isAsking NOTIFY changed)
  Q_PROPERTY(QString askedSize READ askedSize NOTIFY changed)
  Q_PROPERTY(QList<vitrelle::ui::ScreenshotPhones> origins READ origins NOTIFY changed)
  Q_PROPERTY(QString presentPhone READ presentPhone NOTIFY changed)

 public:
  /// What goes wrong is told by the notices.
  IntakeScreen(const Platform& platform, Notices& notices, std::unique_ptr<WallpaperIntake> screen);

  QString title() const { return text(WallpaperIntake::title); }
  QString back() const { return text(WallpaperIntake::back); }
  QString hint() const { return text(WallpaperIntake::hint); }
  QString noImage() const { return text(WallpaperIntake::noImage); }
  QString lightTitle() const { return text(WallpaperIntake::cells[0].title); }
  QString darkTitle() const { return text(WallpaperIntake::cells[1].title); }
  QString lightSymbol() const { return text(WallpaperIntake::cells[0].symbol); }
  QString darkSymbol() const { return text(WallpaperIntake::cells[1].symbol); }
  int styleNumber() const { return static_cast<int>(screen_->styleNumber().value); }
  int revision() const { return revision_; }
  bool isLightSet() const { return screen_->isSet(lightStyle); }
  bool isDarkSet() const { return screen_->isSet(darkStyle); }
  bool isPickerOpen() const { return isPicking() && !isAsking(); }
  QString sheet() const {
    if (!screen_->activeSheet() || isPicking()) return {};
    return QString::fromLatin1(screenName(*screen_->activeSheet()));
  }

  bool isAsking() const { return incoming_.isAsking(); }
  QString askedSize() const;
  QList<ScreenshotPhones> origins() const;
  QString presentPhone() const;

  Q_INVOKABLE void appear();
  /// When the page is left, and when the program ends while it is open.
  Q_INVOKABLE void disappear();
  /// A press that ended so far from the screen's left edge, in points.
  Q_INVOKABLE void tap(qreal x);
  /// Whether a screenshot can be taken in; else it was said why not.
  Q_INVOKABLE bool choose(bool dark);
  /// The picker closed with a file, or without one. What can't be read counts as none, is told to
  /// the user and changes nothing; false then.
  Q_INVOKABLE bool pick(const QUrl& file);
  Q_INVOKABLE void cancel() { take({}); }
  Q_INVOKABLE void showPerspectiveZoom() { screen_->present(ActiveSheet::perspectiveZoom); }
  Q_INVOKABLE void dismissSheet() { screen_->dismissSheet(); }
  WallpaperIntake& screen() { return *screen_; }
  /// The picture in the clipboard, or the file that it names.
  Q_INVOKABLE void paste(bool dark);
  /// All that the clipboard holds, as far as it is pictures.
  Q_INVOKABLE void pasteAll();
  /// One file or two, for the half of which the name tells, else light before dark. More are not
  /// taken, which is said.
  Q_INVOKABLE void takeFiles(const QList<QUrl>& files);

  // The answers to the question about what was picked, pasted or dropped.
  Q_INVOKABLE void answer(int origin);
  Q_INVOKABLE void keepPhone() { incoming_.keep(); }
  Q_INVOKABLE void cancelQuestion();

 Q_SIGNALS:
  void changed();

 private:
  static QString text(std::string_view words) {
    return QString::fromUtf8(words.data(), static_cast<qsizetype>(words.size()));
  }
  bool isPicking() const { return screen_->activeSheet() == ActiveSheet::photoPicker; }
  /// What came for the half that was chosen last.
  void receive(const Image& picture);
  void take(const std::optional<Image>& picture);
  bool refuse(const Failure& failure); ///< false
  bool tellObstacle() const;

  const Platform& platform_;
  Notices& notices_;
  std::unique_ptr<WallpaperIntake> screen_;
  IncomingScreenshots incoming_;
  int revision_ = 0;
  bool appeared_ = false;
  Subscription view_, question_;
};

} // namespace vitrelle::ui
