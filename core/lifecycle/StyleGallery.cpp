#include "core/lifecycle/StyleGallery.h"

#include "core/lifecycle/WidgetLook.h"
#include "core/store/Listing.h"

#include <string>

namespace vitrelle {

StyleGallery::StyleGallery(const Platform& platform, const StyleFamily& family)
    : platform_(platform),
      family_(family),
      storedDataArray_(platform, family.store()),
      selectedConfig_(platform, family.store().selected) {
  bindings_.push_back(family.live(platform, [this] { changed(); }));
  bindings_.push_back(selectedConfig_.onChange([this](const auto&) { changed(); }));
}

void StyleGallery::appear() {
  storedDataArray_.load();
  amount_ = storedDataArray_.count();
  loaded_ = true;
  family_.galleryLoaded(platform_, amount_);
  changed();
}

std::optional<std::string_view> StyleGallery::placeholder() const {
  if (!loaded_) return familyWords::loading;
  if (amount_ == 0) return family_.words().emptyGallery;
  return std::nullopt;
}

std::vector<GalleryTile> StyleGallery::tiles() const {
  std::vector<GalleryTile> tiles;
  const std::int64_t current = selectedConfig_.getOrDefault();
  const auto shown = static_cast<std::size_t>(listed(static_cast<std::int64_t>(amount_)));
  for (std::size_t i = 0; i < shown; ++i) {
    const StyleRecord& record = storedDataArray_.records[i];
    tiles.push_back(
        {.backdrop = widgetBackdrop(platform_, record, WidgetLocationImageNames::smallTopLeft),
         .face = widgetFace(platform_, family_, record, {tileSide(), tileSide()}, FaceUse::gallery),
         .current = static_cast<std::int64_t>(i) == current,
         .linked = linkedStyle(record)});
  }
  return tiles;
}

double StyleGallery::tileSide() const {
  return platform_.device.screenBounds().width / 2.5;
}

double StyleGallery::spacing() const {
  return platform_.device.screenBounds().width / 18;
}

void StyleGallery::tapTick(RecordIndex index) {
  if (selectedConfig_.getOrDefault() == index.value) {
    platform_.haptics.error();
    return;
  }
  selectedConfig_.set(index.value);
  platform_.widgetCenter.reloadAllTimelines();
}

void StyleGallery::tapEdit(RecordIndex index) {
  needToEdit_ = index;
  showEdit_ = true;
  platform_.debugConsole.print("EDITING: " + std::to_string(index.value));
  changed();
}

void StyleGallery::tapAssign(RecordIndex index) {
  needToEdit_ = index;
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

} // namespace vitrelle
