// The picking of a font as QML sees it.
#pragma once

#include "core/pickers/FontPicker.h"
#include "ui/pickers/FontList.h"

#include <QObject>
#include <QQmlEngine>
#include <QString>

#include <optional>

namespace vitrelle::ui {

class FontScreen : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("the shell makes it")
  Q_PROPERTY(vitrelle::ui::FontList* list READ list CONSTANT)
  Q_PROPERTY(int count READ count NOTIFY wordsChanged)
  /// The name that is stored, where the choice is stored under a key.
  Q_PROPERTY(QString storedName READ storedName CONSTANT)
  Q_PROPERTY(qreal nameWidth READ nameWidth CONSTANT)
  Q_PROPERTY(qreal nameHeight READ nameHeight CONSTANT)

 public:
  /// Whoever shows it takes the choice.
  explicit FontScreen(const Platform& platform);
  /// The choice is stored.
  FontScreen(const Platform& platform, const StoredFont& font);

  FontList* list() { return &list_; }
  int count() const { return list_.rowCount(); }
  QString storedName() const;
  qreal nameWidth() const { return nameRoom_.width; }
  qreal nameHeight() const { return nameRoom_.height; }

  /// Shows the installed fonts whose names hold the words.
  Q_INVOKABLE void search(const QString& words);
  /// Where a font is in the list, -1 if it is not.
  Q_INVOKABLE int indexOf(const QString& postScriptName) const;
  /// The user's choice, told by the signals below.
  Q_INVOKABLE void pick(int index);

 Q_SIGNALS:
  void wordsChanged();
  void fontPicked(const QString& postScriptName);
  void dismissed();

 private:
  const Platform& platform_;
  const PointSize nameRoom_;
  FontList list_;
  std::optional<StoredFontPicker> stored_;
};

} // namespace vitrelle::ui
