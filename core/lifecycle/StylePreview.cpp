#include "core/lifecycle/StylePreview.h"

#include "core/slicing/Measurements.h"
#include "core/store/Keys.h"
#include "core/store/Listing.h"

namespace vitrelle {

namespace {

double smallWidgetSide(const Platform& platform) {
  Platform quiet = platform; // the lookup tells the debug console, which this is no news for
  quiet.debugConsole.print = [](const std::string&) {};
  const WidgetMeasurements measured = Measurements::current(quiet);
  // A phone without measurements gets the proportions of most of the others.
  if (measured.widgetSize == 0) return platform.device.screenBounds().width * 0.4;
  return static_cast<double>(measured.widgetSize) / platform.device.screenNativeScale();
}

} // namespace

StylePreview::StylePreview(const Platform& platform, const StyleFamily& family)
    : platform_(platform),
      family_(family),
      storedDataArray_(platform, family.store()),
      amountOfConfigs_(platform, keys::amountOfConfigs),
      selectedConfig_(platform, family.store().selected) {
  bindings_.push_back(amountOfConfigs_.onChange([this](const auto&) { changed(); }));
  bindings_.push_back(family.live(platform, [this] { changed(); }));
}

void StylePreview::appear() {
  widgetSide_ = smallWidgetSide(platform_);
  img_ = currentSlice(platform_, WidgetLocationImageNames::mediumTop);
  storedDataArray_.load();
  const RecordIndex current{selectedConfig_.getOrDefault()};
  shown_.reset();
  for (const StyleRecord& record : storedDataArray_.records) {
    if (tagOf(record) == current) shown_ = record;
  }
  changed();
}

DisplayList StylePreview::face(const PointSize& frame) const {
  if (!shown_) return {};
  const View whole = family_.face(platform_, *shown_, FaceUse::preview);
  return layOut(shrunkToFit(whole, frame.width / widgetSide_), frame, platform_.drawing);
}

std::vector<std::optional<SliceName>> StylePreview::pages() const {
  std::vector<std::optional<SliceName>> pages;
  const std::int64_t amount = listed(amountOfConfigs_.getOrDefault());
  for (std::int64_t config = 0; config < amount; ++config) {
    const StyleNumber number{config};
    auto whole = findSlice(platform_, WidgetLocationImageNames::fullImage, number, lightStyle);
    if (!whole)
      whole = findSlice(platform_, WidgetLocationImageNames::fullImage, number, darkStyle);
    pages.push_back(std::move(whole));
  }
  return pages;
}

PointSize StylePreview::pageSize() const {
  const PointSize screen = platform_.device.screenBounds();
  return {screen.width / 1.5, screen.height / 1.5};
}

} // namespace vitrelle
