#include "ui/pickers/FontList.h"

#include "core/drawing/View.h"
#include "ui/parts/FaceItem.h"

#include <QString>

namespace vitrelle::ui {

namespace {

enum Role { nameRole = Qt::UserRole, postScriptNameRole, faceRole };

constexpr double nameSize = 19; ///< points

} // namespace

int FontList::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(families_.size());
}

QVariant FontList::data(const QModelIndex& index, int role) const {
  if (!index.isValid() || index.row() >= rowCount()) return {};
  const FontFamily& family = families_[static_cast<std::size_t>(index.row())];
  switch (role) {
  case nameRole:
    return QString::fromStdString(family.name);
  case postScriptNameRole:
    return QString::fromStdString(family.postScriptName);
  case faceRole: {
    const View name =
        framed(text(family.name, {.name = family.postScriptName, .size = nameSize}, {1, 1, 1, 1}),
               nameRoom_.width, nameRoom_.height, {.horizontal = Place::start});
    return QVariant::fromValue(Face::of(layOut(name, nameRoom_, platform_.drawing)));
  }
  default:
    return {};
  }
}

QHash<int, QByteArray> FontList::roleNames() const {
  return {{nameRole, "name"}, {postScriptNameRole, "postScriptName"}, {faceRole, "face"}};
}

void FontList::show(std::vector<FontFamily> families) {
  // Not a reset: views stumble over one while they still make rows of the old list.
  if (!families_.empty()) {
    beginRemoveRows({}, 0, rowCount() - 1);
    families_.clear();
    endRemoveRows();
  }
  if (families.empty()) return;
  beginInsertRows({}, 0, static_cast<int>(families.size()) - 1);
  families_ = std::move(families);
  endInsertRows();
}

} // namespace vitrelle::ui
