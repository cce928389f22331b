// The tiles of a gallery as a QML model.
#pragma once

#include "core/lifecycle/StyleGallery.h"

#include <QAbstractListModel>
#include <QQmlEngine>

#include <vector>

namespace vitrelle::ui {

class TileList : public QAbstractListModel {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("a gallery has it")

 public:
  explicit TileList(const StyleGallery& gallery) : gallery_(gallery) {}

  int rowCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QHash<int, QByteArray> roleNames() const override;
  void refresh();

 private:
  const StyleGallery& gallery_;
  std::vector<GalleryTile> tiles_;
};

} // namespace vitrelle::ui
