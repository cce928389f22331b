#include "core/lifecycle/StyleGallery.h"

#include "core/store/Listing.h"

#include <string>

namespace vitrelle {

StyleGallery::StyleGallery(const Platform& platform, const FamilyDescription& words,
                           const Key<std::int64_t>& selected)
    : platform_(platform), words_(words), selectedConfig_(platform, selected) {
  bindings_.push_back(selectedConfig_.onChange([this](const auto&) { changed(); }));
}

void StyleGallery::appear() {
  img_ = currentSlice(platform_, WidgetLocationImageNames::smallTopLeft);
  load();
  amount_ = stored().count();
  loaded_ = true;
  changed();
}

std::optional<std::string_view> StyleGallery::placeholder() const {
  if (!loaded_) return familyWords::loading;
  if (amount_ == 0) return words_.emptyGallery;
  return std::nullopt;
}

std::vector<GalleryTile> StyleGallery::tiles() const {
  std::vector<GalleryTile> tiles;
  const std::int64_t current = selectedConfig_.getOrDefault();
  const auto shown = static_cast<std::size_t>(listed(static_cast<std::int64_t>(amount_)));
  for (std::size_t i = 0; i < shown; ++i) {
    tiles.push_back({.backdrop = backdrop(i),
                     .face = face(i, {tileSide(), tileSide()}),
                     .current = static_cast<std::int64_t>(i) == current,
                     .linked = linkedConfig(i)});
  }
  return tiles;
}

double StyleGallery::tileSide() const {
  return platform_.device.screenBounds().width / 2.5;
}

double StyleGallery::spacing() const {
  return platform_.device.screenBounds().width / 18;
}

void StyleGallery::tapTick(std::size_t index) {
  const auto number = static_cast<std::int64_t>(index);
  if (selectedConfig_.getOrDefault() == number) {
    platform_.haptics.error();
    return;
  }
  selectedConfig_.set(number);
  platform_.widgetCenter.reloadAllTimelines();
}

void StyleGallery::tapEdit(std::size_t index) {
  needToEdit_ = static_cast<std::int64_t>(index);
  showEdit_ = true;
  platform_.debugConsole.print("EDITING: " + std::to_string(index));
  changed();
}

void StyleGallery::tapAssign(std::size_t index) {
  needToEdit_ = static_cast<std::int64_t>(index);
  showAssignSheet_ = true;
  changed();
}

void StyleGallery::dismissEdit() {
  showEdit_ = false;
  appear();
}

void StyleGallery::dismissAssign() {
  showAssignSheet_ = false;
  appear();
}

std::optional<SliceName> StyleGallery::backdrop(std::size_t index) const {
  const auto linked = linkedConfig(index);
  if (!linked) return img_;
  auto slice = findSlice(platform_, WidgetLocationImageNames::smallTopLeft, *linked,
                         currentAppearance(platform_));
  return slice ? slice : img_;
}

std::optional<std::int64_t> StyleGallery::linkedConfig(std::size_t index) const {
  const std::int64_t linked = stored().linked(index);
  return linked == noLinkedConfig ? std::nullopt : std::optional(linked);
}

} // namespace vitrelle
