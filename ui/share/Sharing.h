// What can be done with something that leaves the program: saved, copied, opened with another
// program, dragged there. Every way hands over the same bytes, unchanged.
#pragma once

#include "core/platform/Platform.h"
#include "ui/share/SharedItem.h"

#include <QMimeData>
#include <QObject>
#include <QQmlEngine>
#include <QQuickItem>
#include <QTemporaryDir>
#include <QUrl>

#include <memory>

namespace vitrelle::ui {

class Sharing final : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_SINGLETON

 public:
  /// Not without an argument: the engine would make one of its own.
  explicit Sharing(const Platform& platform) : platform_(platform) {}

  /// For the QML engine, with which it goes.
  static Sharing* create(QQmlEngine* engine, QJSEngine*);

  /// Where saving begins: where it ended last, else among the user's pictures.
  Q_INVOKABLE QString folder() const;
  Q_INVOKABLE static QUrl urlIn(const QString& folder, const QString& fileName);
  Q_INVOKABLE static QString nameOf(const QUrl& file) { return file.fileName(); }
  Q_INVOKABLE static bool isFolder(const QUrl& place);
  /// Whether something lies there already.
  Q_INVOKABLE static bool exists(const QUrl& file);
  /// Writes the file whole, replacing what was there, and remembers its folder. Why it could not;
  /// empty when it could.
  Q_INVOKABLE QString save(const vitrelle::ui::SharedItem& item, const QUrl& file);
  /// Into the clipboard, for as long as the program runs.
  Q_INVOKABLE void copy(const vitrelle::ui::SharedItem& item);
  /// Hands a copy to the program that the desktop has for such files; `openFailed` may follow.
  Q_INVOKABLE void open(const vitrelle::ui::SharedItem& item);
  /// From the item that is being dragged; begins as soon as that has noticed.
  Q_INVOKABLE void drag(const vitrelle::ui::SharedItem& item, QQuickItem* source);

 Q_SIGNALS:
  void openFailed(const QString& why);

 private:
  /// Returns when it was dropped somewhere, or nowhere.
  void dragNow(const SharedItem& item, QQuickItem* source);
  QMimeData* mimeData(const SharedItem& item);
  /// Path of a copy under the item's name, which is there until the program ends; empty where none
  /// can be written.
  QString temporaryFile(const SharedItem& item);

  const Platform& platform_;
  std::unique_ptr<QTemporaryDir> temporary_;
  int copies_ = 0;
  SharedItem copied_; ///< the last that was written there
  QString copyPath_;
};

} // namespace vitrelle::ui
