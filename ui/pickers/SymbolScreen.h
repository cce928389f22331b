// The picking of a symbol as QML sees it.
#pragma once

#include "core/pickers/SFSymbolsPicker.h"

#include <QObject>
#include <QQmlEngine>
#include <QStringList>

namespace vitrelle::ui {

class SymbolScreen : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("the shell makes it")
  Q_PROPERTY(QStringList names READ names CONSTANT)

 public:
  explicit SymbolScreen(const Platform& platform);

  QStringList names() const { return names_; }

  /// Where a symbol is in the list, -1 if it is not.
  Q_INVOKABLE int indexOf(const QString& name) const {
    return static_cast<int>(names_.indexOf(name));
  }
  /// The user's choice, told by `picked`.
  Q_INVOKABLE void select(int index) const;
  Q_INVOKABLE void close() const { picker_.close(); }

 Q_SIGNALS:
  void picked(const QString& name);
  void dismissed();

 private:
  const SFSymbolsPicker picker_;
  QStringList names_;
};

} // namespace vitrelle::ui
