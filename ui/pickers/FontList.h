// The font families to pick from, searched, each with its name set in its own face.
#pragma once

#include "core/pickers/FontPicker.h"

#include <QAbstractListModel>
#include <QQmlEngine>
#include <QString>

#include <vector>

namespace vitrelle::ui {

class FontList : public QAbstractListModel {
  Q_OBJECT
  QML_ELEMENT
  Q_PROPERTY(QString words MEMBER words_ WRITE setWords NOTIFY wordsChanged)
  /// The room that a name has, points.
  Q_PROPERTY(qreal nameWidth MEMBER nameWidth_ NOTIFY roomChanged)
  Q_PROPERTY(qreal nameHeight MEMBER nameHeight_ NOTIFY roomChanged)
  Q_PROPERTY(int count READ count NOTIFY wordsChanged)

 public:
  explicit FontList(QObject* parent = nullptr) : QAbstractListModel(parent) {}

  int rowCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QHash<int, QByteArray> roleNames() const override;
  int count() const { return rowCount(); }
  void setWords(const QString& words);
  /// Reads the installed fonts.
  Q_INVOKABLE void appear();
  /// The user's choice, told by the signals below.
  Q_INVOKABLE void pick(int index);
  /// Where a font is in the list, -1 if it is not.
  Q_INVOKABLE int indexOf(const QString& postScriptName) const;

 Q_SIGNALS:
  void wordsChanged();
  void roomChanged();
  void fontPicked(const QString& postScriptName);
  void dismissed();

 private:
  const Platform& platform() const;

  QString words_;
  qreal nameWidth_ = 0;
  qreal nameHeight_ = 0;
  std::vector<FontFamily> families_;
};

} // namespace vitrelle::ui
