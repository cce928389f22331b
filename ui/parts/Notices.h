// One line that the user should read, wherever in the program it came up.
#pragma once

#include <QObject>
#include <QQmlEngine>
#include <QString>

namespace vitrelle::ui {

class Notices final : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_SINGLETON
  /// Empty when there is none.
  Q_PROPERTY(QString text READ text NOTIFY changed)
  Q_PROPERTY(Kind kind READ kind NOTIFY changed)

 public:
  // NOLINTBEGIN(readability-identifier-naming): QML knows enumerators by their capitals.
  enum Kind {
    Done,    ///< what was wanted has happened
    Refusal, ///< something did not happen; gone as soon as it does
    Trouble, ///< stays as long as what it tells of
  };
  // NOLINTEND(readability-identifier-naming)
  Q_ENUM(Kind)

  /// Not without an argument: the engine would make one of its own.
  explicit Notices(QObject* owner) : QObject(owner) {}

  /// Those of all that the engine makes.
  void give(QQmlEngine& engine);
  /// For the QML engine itself.
  static Notices* create(QQmlEngine* engine, QJSEngine*);

  QString text() const { return text_; }
  Kind kind() const { return kind_; }

  /// In the place of another, unless that tells of lasting trouble and this does not.
  Q_INVOKABLE void show(const QString& text, vitrelle::ui::Notices::Kind kind = Refusal);
  Q_INVOKABLE void dismiss();

 Q_SIGNALS:
  void changed();

 private:
  QString text_;
  Kind kind_ = Done;
};

} // namespace vitrelle::ui
