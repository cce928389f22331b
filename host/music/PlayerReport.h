// What a music player on the bus says of itself, as plain values. Whatever it says, in whatever
// types, is survived.
#pragma once

#include "core/platform/MusicPlayer.h"

#include <QString>
#include <QVariantMap>

namespace vitrelle::host {

struct PlayerReport {
  std::int64_t state = playback::stopped;
  std::optional<std::string> title = std::nullopt;
  std::optional<std::string> albumTitle = std::nullopt;
  std::optional<std::string> artist = std::nullopt;
  QString artwork = {}; ///< an address; empty where there is none

  /// What does not play and names nothing has no item.
  bool hasItem() const { return *this != PlayerReport(); }
  /// Takes over those of the player's properties that are told; others stay.
  void take(const QVariantMap& properties);

  bool operator==(const PlayerReport&) const = default;
};

} // namespace vitrelle::host
