// Puts the screens of the logic, the QML that draws them and the window together.
#pragma once

#include "core/app/ModernContentView.h"
#include "core/platform/Platform.h"
#include "ui/app/RootScreen.h"
#include "ui/app/ScreenTable.h"
#include "ui/centre/DateTextScreen.h"
#include "ui/centre/SolidBackgroundScreen.h"
#include "ui/lifecycle/FamilyScreen.h"
#include "ui/parts/PictureSource.h"
#include "ui/pickers/FontScreen.h"
#include "ui/pickers/SymbolScreen.h"
#include "ui/slicing/IntakeScreen.h"

#include <QObject>
#include <QQmlApplicationEngine>
#include <QQuickWindow>
#include <QString>

#include <memory>

namespace vitrelle::ui {

struct ShellOptions {
  QString screen;     ///< type name of the screen to open; empty for the root
  bool framed = true; ///< the phone's frame around the screen
  bool animated = true;
  bool launches = true; ///< whether the root decides about the launch
};

/// What QML sees of the program: the one object that screens begin at.
class Shell final : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_SINGLETON
  Q_PROPERTY(qreal screenWidth READ screenWidth CONSTANT)
  Q_PROPERTY(qreal screenHeight READ screenHeight CONSTANT)
  Q_PROPERTY(bool framed READ isFramed CONSTANT)
  Q_PROPERTY(bool animated READ isAnimated CONSTANT)
  Q_PROPERTY(QString screen READ screen CONSTANT)
  Q_PROPERTY(bool launches READ isLaunch CONSTANT)
  Q_PROPERTY(bool dark READ isDark NOTIFY darkChanged)
  Q_PROPERTY(vitrelle::ui::RootScreen* root READ root CONSTANT)
  /// One line that the user should read; empty when there is none.
  Q_PROPERTY(QString notice READ notice NOTIFY noticeChanged)
  Q_PROPERTY(NoticeKind noticeKind READ noticeKind NOTIFY noticeChanged)
  /// Whether the last that was done in the window was done by keys.
  Q_PROPERTY(bool keysInUse READ areKeysInUse NOTIFY keysInUseChanged)
  /// Whether a picture lies in the clipboard.
  Q_PROPERTY(bool canPaste READ canPaste NOTIFY canPasteChanged)

 public:
  // NOLINTBEGIN(readability-identifier-naming): QML knows enumerators by their capitals.
  enum NoticeKind {
    Done,    ///< what was wanted has happened
    Refusal, ///< something did not happen; gone as soon as it does
    Trouble, ///< stays as long as what it tells of
  };
  // NOLINTEND(readability-identifier-naming)
  Q_ENUM(NoticeKind)

  /// The platform must outlive it.
  Shell(const Platform& platform, ShellOptions options);
  ~Shell() override;

  /// For the QML engine, which asks for the one that made it.
  static Shell* create(QQmlEngine* engine, QJSEngine*);
  static Shell& of(const QQmlEngine& engine);

  /// The names that `ShellOptions::screen` may have.
  static QStringList screenNames();

  /// Builds the window and shows it; false when the QML is damaged.
  bool open();
  QQuickWindow* window() const { return window_; }
  PictureSource& pictures() { return pictures_; }
  const Platform& platform() const { return platform_; }
  void raise();

  qreal screenWidth() const;
  qreal screenHeight() const;
  bool isFramed() const { return options_.framed; }
  bool isAnimated() const { return options_.animated; }
  QString screen() const { return options_.screen; }
  bool isLaunch() const { return options_.launches; }
  bool isDark() const;
  RootScreen* root() { return &root_; }
  QString notice() const { return notice_; }
  NoticeKind noticeKind() const { return noticeKind_; }
  bool canPaste() const;
  bool areKeysInUse() const { return keysInUse_; }
  /// Whether the key that was pressed last is one that is held, and sends its presses again.
  Q_INVOKABLE bool isKeyHeld() const { return keyHeld_; }

  /// The QML owns what it gets.
  Q_INVOKABLE vitrelle::ui::IntakeScreen* newStyle();
  Q_INVOKABLE vitrelle::ui::IntakeScreen* changeStyle(int number);
  /// The family's entry screen, by its name in the family table.
  Q_INVOKABLE vitrelle::ui::FamilyScreen* family(const QString& name) const;
  /// Whether a screen is there; nothing leads to one that is not.
  Q_INVOKABLE bool hasScreen(const QString& name) const { return screenNames().contains(name); }
  /// What draws the screen of a type name; the page is empty for a name that none has.
  Q_INVOKABLE vitrelle::ui::ScreenEntry screenEntry(const QString& name) const;
  Q_INVOKABLE vitrelle::ui::FontScreen* fonts() const { return new FontScreen(platform_); }
  /// Over the key of a picker that has one of its own, by the picker's type name.
  Q_INVOKABLE vitrelle::ui::FontScreen* storedFonts(const QString& picker) const {
    return new FontScreen(platform_, storedFont(picker.toStdString()));
  }
  Q_INVOKABLE vitrelle::ui::DateTextScreen* dateText() const {
    return new DateTextScreen(platform_);
  }
  Q_INVOKABLE vitrelle::ui::SolidBackgroundScreen* solidBackground() const {
    return new SolidBackgroundScreen(platform_);
  }
  Q_INVOKABLE vitrelle::ui::SymbolScreen* symbols() const { return new SymbolScreen(platform_); }
  /// What a form shows for a font's name.
  Q_INVOKABLE static QString fontWords(const QString& name) {
    return qText(vitrelle::fontWords(name.toStdString()));
  }
  /// Where the choosing of a picture begins.
  Q_INVOKABLE QString pictureFolder() const;
  /// Lets the next choosing begin where this file lies.
  Q_INVOKABLE void rememberPicture(const QUrl& file) const;
  /// In the place of another, unless that tells of lasting trouble and this does not.
  Q_INVOKABLE void showNotice(const QString& text, NoticeKind kind = Refusal);
  Q_INVOKABLE void dismissNotice();

 Q_SIGNALS:
  void darkChanged();
  void noticeChanged();
  void canPasteChanged();
  void keysInUseChanged();
  /// The program ends, whatever ends it; pages that are open are left.
  void closing();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void noteKey(const QKeyEvent& event);

  const Platform& platform_;
  const ShellOptions options_;
  PictureSource pictures_;
  RootScreen root_;
  QString notice_;
  NoticeKind noticeKind_ = Done;
  bool keysInUse_ = false;
  bool keyHeld_ = false;
  int lastKey_ = 0;
  quint64 lastKeyTime_ = 0;        ///< milliseconds, by the window system's clock
  QQuickWindow* window_ = nullptr; ///< the engine's
  QQmlApplicationEngine engine_;   ///< last, for its objects use all others
};

} // namespace vitrelle::ui
