#include "ui/pickers/FontList.h"

#include "core/drawing/View.h"
#include "ui/Shell.h"
#include "ui/parts/FaceItem.h"

#include <algorithm>

namespace vitrelle::ui {

namespace {

enum Role { nameRole = Qt::UserRole, postScriptNameRole, faceRole };

constexpr double nameSize = 19; ///< points

} // namespace

const Platform& FontList::platform() const {
  return Shell::of(*qmlEngine(this)).platform();
}

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
               nameWidth_, nameHeight_, {.horizontal = Place::start});
    return QVariant::fromValue(
        Face::of(layOut(name, {nameWidth_, nameHeight_}, platform().drawing)));
  }
  default:
    return {};
  }
}

QHash<int, QByteArray> FontList::roleNames() const {
  return {{nameRole, "name"}, {postScriptNameRole, "postScriptName"}, {faceRole, "face"}};
}

void FontList::setWords(const QString& words) {
  if (words == words_) return;
  words_ = words;
  appear();
}

void FontList::appear() {
  // Not a reset: views stumble over one while they still make rows of the old list.
  if (!families_.empty()) {
    beginRemoveRows({}, 0, rowCount() - 1);
    families_.clear();
    endRemoveRows();
  }
  std::vector<FontFamily> found = fontFamilies(platform().fonts, words_.trimmed().toStdString());
  if (!found.empty()) {
    beginInsertRows({}, 0, static_cast<int>(found.size()) - 1);
    families_ = std::move(found);
    endInsertRows();
  }
  Q_EMIT wordsChanged();
}

void FontList::pick(int index) {
  if (index < 0 || index >= rowCount()) return;
  const ModernFontPicker picker(
      [this](const std::string& name) { Q_EMIT fontPicked(QString::fromStdString(name)); },
      [this] { Q_EMIT dismissed(); });
  picker.didPickFont(families_[static_cast<std::size_t>(index)]);
}

int FontList::indexOf(const QString& postScriptName) const {
  const auto found =
      std::ranges::find(families_, postScriptName.toStdString(), &FontFamily::postScriptName);
  return found == families_.end() ? -1 : static_cast<int>(found - families_.begin());
}

} // namespace vitrelle::ui
