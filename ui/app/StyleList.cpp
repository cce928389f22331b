#include "ui/app/StyleList.h"

#include <algorithm>

namespace vitrelle::ui {

int StyleList::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(cards_.size());
}

QVariant StyleList::data(const QModelIndex& index, int role) const {
  if (!index.isValid() || index.row() >= rowCount()) return {};
  const Card& card = cards_[static_cast<std::size_t>(index.row())];
  switch (role) {
  case styleNumber:
    return static_cast<int>(card.number.value);
  case selected:
    return card.selected;
  case revision:
    return card.revision;
  default:
    return {};
  }
}

QHash<int, QByteArray> StyleList::roleNames() const {
  return {{styleNumber, "styleNumber"}, {selected, "selected"}, {revision, "revision"}};
}

void StyleList::refresh() {
  const auto& styles = screen_.vitrelleConfigs();
  const bool sameNumbers =
      std::ranges::equal(styles, cards_, {}, &VitrelleConfigData::configNumber, &Card::number);
  if (!sameNumbers) {
    beginResetModel();
    cards_.clear();
    for (const VitrelleConfigData& style : styles)
      cards_.push_back({style.configNumber, screen_.isSelected(style.configNumber), style, 0});
    endResetModel();
    return;
  }
  for (std::size_t i = 0; i < cards_.size(); ++i) {
    Card& card = cards_[i];
    const bool selectedNow = screen_.isSelected(card.number);
    const bool loadedAnew = !(card.style == styles[i]);
    if (card.selected == selectedNow && !loadedAnew) continue;
    card.selected = selectedNow;
    card.revision += loadedAnew ? 1 : 0;
    card.style = styles[i];
    const QModelIndex row = index(static_cast<int>(i));
    Q_EMIT dataChanged(row, row);
  }
}

} // namespace vitrelle::ui
