// The hub: the way to the six widget families, to the settings that widgets share and to the export
// of slices.
#pragma once

#include "core/platform/Platform.h"
#include "core/platform/PlatformColour.h"
#include "core/platform/Screen.h"
#include "core/store/StoredValue.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vitrelle {

/// One entry of the hub.
struct HubTile {
  enum class Opens : std::uint8_t { family, settings, exporting, more };

  std::string_view text;
  std::string_view symbol;
  PlatformColour colour;
  Opens opens = Opens::family;
  std::string_view family = {}; ///< the name of the one that it opens, "clock"
};

class ModernWidgetCentre final : public Screen {
 public:
  static constexpr std::string_view title = "Widget Centre";
  static constexpr std::string_view symbol = "command";
  static constexpr double iconSide = 60;    ///< of a tile, points
  static constexpr double tileSpacing = 30; ///< points

  /// Whether the display is zoomed is looked at now, and when another phone is stood for. The
  /// platform must outlive it.
  explicit ModernWidgetCentre(const Platform& platform);

  /// Also sees to the request for a review.
  void appear() const;

  /// A zoomed display has a plain list of all entries, any other a row of tiles.
  bool isList() const { return isZoomed_; }
  /// As they are shown now.
  std::vector<HubTile> tiles() const;
  /// The row's padding, points.
  double padding() const;
  bool moreTapped() const { return moreTapped_; }
  bool showSettings() const { return showSettings_; }
  bool showExport() const { return showExport_; }
  std::optional<std::int64_t> selectedConfig() const { return selectedConfig_.get(); }

  /// The screen that the tile leads to; empty where it opens a sheet, or more tiles.
  std::string tap(const HubTile& tile);
  void dismissSheet();

 private:
  void lookAtDisplay();

  const Platform& platform_;
  bool isZoomed_ = false;
  bool moreTapped_ = false;
  bool showSettings_ = false;
  bool showExport_ = false;
  StoredValue<std::int64_t> selectedConfig_;
  Subscription binding_; ///< last, for they call this screen
  Subscription phones_;
};

} // namespace vitrelle
