// The font families to pick from as a QML model, each with its name set in its own face.
#pragma once

#include "core/platform/Platform.h"

#include <QAbstractListModel>
#include <QQmlEngine>

#include <vector>

namespace vitrelle::ui {

class FontList : public QAbstractListModel {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("a picker has it")

 public:
  /// Each name is set in so much room, points.
  FontList(const Platform& platform, const PointSize& nameRoom)
      : platform_(platform), nameRoom_(nameRoom) {}

  int rowCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QHash<int, QByteArray> roleNames() const override;

  const std::vector<FontFamily>& families() const { return families_; }
  void show(std::vector<FontFamily> families);

 private:
  const Platform& platform_;
  const PointSize nameRoom_;
  std::vector<FontFamily> families_;
};

} // namespace vitrelle::ui
