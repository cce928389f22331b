#include "ui/centre/WidgetCentreScreen.h"

#include "host/painting/PainterValues.h"

#include <utility>

namespace vitrelle::ui {

QList<Tile> WidgetCentreScreen::made() const {
  QList<Tile> tiles;
  for (const HubTile& tile : screen_.tiles())
    tiles += {qText(tile.text), qText(tile.symbol), host::qColour(tile.colour)};
  return tiles;
}

QString WidgetCentreScreen::tap(int index) {
  const std::vector<HubTile> tiles = screen_.tiles();
  if (index < 0 || !std::cmp_less(index, tiles.size())) return {};
  return QString::fromStdString(screen_.tap(tiles[static_cast<std::size_t>(index)]));
}

/// The tiles are made anew only when there are others: the keys are on one of them.
void WidgetCentreScreen::follow() {
  const QList<Tile> now = made();
  if (now != tiles_) {
    tiles_ = now;
    Q_EMIT tilesChanged();
  }
  Q_EMIT changed();
}

} // namespace vitrelle::ui
