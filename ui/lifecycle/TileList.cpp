#include "ui/lifecycle/TileList.h"

#include "ui/lifecycle/FamilyWords.h"
#include "ui/parts/FaceItem.h"

#include <utility>

namespace vitrelle::ui {

namespace {

enum Role { faceRole = Qt::UserRole, backdropRole, currentRole, linkedRole };

} // namespace

int TileList::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(tiles_.size());
}

QVariant TileList::data(const QModelIndex& index, int role) const {
  if (!index.isValid() || index.row() >= rowCount()) return {};
  const GalleryTile& tile = tiles_[static_cast<std::size_t>(index.row())];
  switch (role) {
  case faceRole:
    return QVariant::fromValue(Face::of(tile.face));
  case backdropRole:
    return QVariant::fromValue(BackdropName::of(tile.backdrop));
  case currentRole:
    return tile.current;
  case linkedRole:
    return tile.linked && std::in_range<int>(tile.linked->value)
               ? static_cast<int>(tile.linked->value)
               : -1;
  default:
    return {};
  }
}

QHash<int, QByteArray> TileList::roleNames() const {
  return {{faceRole, "face"},
          {backdropRole, "backdrop"},
          {currentRole, "current"},
          {linkedRole, "linked"}};
}

void TileList::refresh() {
  std::vector<GalleryTile> now = gallery_.tiles();
  if (now.size() != tiles_.size()) {
    beginResetModel();
    tiles_ = std::move(now);
    endResetModel();
    return;
  }
  for (std::size_t i = 0; i < now.size(); ++i) {
    if (now[i] == tiles_[i]) continue;
    tiles_[i] = std::move(now[i]);
    const QModelIndex at = index(static_cast<int>(i));
    Q_EMIT dataChanged(at, at);
  }
}

} // namespace vitrelle::ui
