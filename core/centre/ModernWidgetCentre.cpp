#include "core/centre/ModernWidgetCentre.h"

#include "core/centre/ReviewHandler.h"
#include "core/lifecycle/FamilyTable.h"
#include "core/store/Keys.h"

#include <array>

namespace vitrelle {

namespace {

constexpr PlatformColour indigo{0.37, 0.36, 0.9, 1};
constexpr PlatformColour accent{0.39, 0.9, 0.89, 1};
constexpr PlatformColour green{0.2, 0.78, 0.35, 1};
constexpr PlatformColour pink{1, 0.18, 0.33, 1};
constexpr PlatformColour orange{1, 0.58, 0, 1};
constexpr PlatformColour purple{0.69, 0.32, 0.87, 1};
constexpr PlatformColour grey{0.56, 0.56, 0.58, 1};
constexpr PlatformColour panel{0.17, 0.17, 0.18, 1};

constexpr std::array<HubTile, 8> entries{{
    {"Image", "photo.fill", indigo, HubTile::Opens::family, "image"},
    {"Weather", "cloud.sun.fill", accent, HubTile::Opens::family, "weather"},
    {"Battery", "battery.100", green, HubTile::Opens::family, "battery"},
    {"Now Playing", "waveform", pink, HubTile::Opens::family, "music"},
    {"Time", "clock.fill", orange, HubTile::Opens::family, "clock"},
    {"Text", "text.bubble.fill", purple, HubTile::Opens::family, "text"},
    {"Settings", "gearshape.2.fill", panel, HubTile::Opens::settings},
    {"Export", "square.and.arrow.up", panel, HubTile::Opens::exporting},
}};
constexpr std::size_t fewEntries = 3; // before the one for more
constexpr HubTile more{"More", "ellipsis", panel, HubTile::Opens::more};

} // namespace

ModernWidgetCentre::ModernWidgetCentre(const Platform& platform)
    : platform_(platform),
      selectedConfig_(platform, keys::selectedConfig),
      binding_(selectedConfig_.onChange([this](const auto&) { changed(); })),
      phones_(platform.phoneBook.watch([this](const PhoneChoice&) {
        lookAtDisplay();
        changed();
      })) {
  lookAtDisplay();
}

void ModernWidgetCentre::lookAtDisplay() {
  isZoomed_ = platform_.device.screenScale() < platform_.device.screenNativeScale();
}

void ModernWidgetCentre::appear() const {
  ReviewHandler::check(platform_);
}

std::vector<HubTile> ModernWidgetCentre::tiles() const {
  if (!isZoomed_ && !moreTapped_) {
    std::vector<HubTile> few(entries.begin(), entries.begin() + fewEntries);
    few.push_back(more);
    return few;
  }
  std::vector<HubTile> all(entries.begin(), entries.end());
  for (HubTile& tile : all) {
    if (isZoomed_ && tile.opens != HubTile::Opens::family) tile.colour = grey;
  }
  return all;
}

double ModernWidgetCentre::padding() const {
  return platform_.device.screenBounds().width / 9;
}

std::string ModernWidgetCentre::tap(const HubTile& tile) {
  platform_.haptics.lightImpact();
  if (tile.opens == HubTile::Opens::family)
    return std::string(familyDescription(tile.family).firstScreen());
  if (tile.opens == HubTile::Opens::more) moreTapped_ = true;
  if (tile.opens == HubTile::Opens::settings) showSettings_ = true;
  if (tile.opens == HubTile::Opens::exporting) showExport_ = true;
  changed();
  return {};
}

void ModernWidgetCentre::dismissSheet() {
  showSettings_ = showExport_ = false;
  changed();
}

} // namespace vitrelle
