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

StylePreview::StylePreview(const Platform& platform, const FamilyDescription& words,
                           const Key<std::int64_t>& selected)
    : platform_(platform),
      words_(words),
      amountOfConfigs_(platform, keys::amountOfConfigs),
      selectedConfig_(platform, selected),
      widgetSide_(smallWidgetSide(platform)),
      amountBinding_(amountOfConfigs_.onChange([this](const auto&) { changed(); })) {}

void StylePreview::appear() {
  img_ = currentSlice(platform_, WidgetLocationImageNames::mediumTop);
  stored().load();
  const std::int64_t current = selectedConfig_.getOrDefault();
  for (std::size_t i = 0; i < stored().count(); ++i) {
    if (stored().tag(i) == current) copy(i);
  }
  changed();
}

std::vector<std::optional<SliceName>> StylePreview::pages() const {
  std::vector<std::optional<SliceName>> pages;
  const std::int64_t amount = listed(amountOfConfigs_.getOrDefault());
  for (std::int64_t config = 0; config < amount; ++config) {
    auto whole = findSlice(platform_, WidgetLocationImageNames::fullImage, config, lightStyle);
    if (!whole)
      whole = findSlice(platform_, WidgetLocationImageNames::fullImage, config, darkStyle);
    pages.push_back(std::move(whole));
  }
  return pages;
}

PointSize StylePreview::pageSize() const {
  const PointSize screen = platform_.device.screenBounds();
  return {screen.width / 1.5, screen.height / 1.5};
}

PointRect StylePreview::widgetBox() const {
  const PointSize screen = platform_.device.screenBounds();
  const double side = screen.width * 0.25;
  // The square and the padding behind it stand in the middle of the page's width.
  const double left = (pageSize().width - (side + screen.width / 3.5)) / 2;
  return {left, screen.height / 1.5 * 0.125, side, side};
}

} // namespace vitrelle
