#include "core/centre/CustomDateTextView.h"

#include "core/drawing/View.h"
#include "core/store/ColourComponents.h"
#include "core/store/Keys.h"

#include <algorithm>

namespace vitrelle {

namespace {

constexpr std::int64_t usualSize = 18;
constexpr const char* usualFont = "Helvetica";

} // namespace

CustomDateTextView::CustomDateTextView(const Platform& platform)
    : platform_(platform),
      storedColour_(platform, keys::dateColour),
      storedSize_(platform, keys::dateFontSize),
      storedFont_(platform, keys::dateFontPicked),
      background_(platform, [this] { changed(); }),
      colours_(storedColour_.onChange([this](const std::optional<std::string>& text) {
        colour_ = parseColourComponents(text.value_or("")).value_or(colour_);
        changed();
      })),
      sizes_(storedSize_.onChange([this](const std::optional<std::int64_t>& size) {
        size_ = size.value_or(usualSize);
        changed();
      })),
      fonts_(storedFont_.onChange([this](const std::optional<std::string>& font) {
        font_ = font.value_or(usualFont);
        changed();
      })),
      styles_(StoredValue(platform, keys::selectedConfig)
                  .onChange([this](const std::optional<std::int64_t>&) { appear(); })) {}

void CustomDateTextView::appear() {
  img_ = currentSlice(platform_, WidgetLocationImageNames::mediumTop);
  changed();
}

void CustomDateTextView::setDateColour(const PlatformColour& colour) {
  colour_ = colour;
  storedColour_.set(colourComponents(colour));
  platform_.widgetCenter.reloadAllTimelines();
  changed();
}

void CustomDateTextView::setDateFontSize(std::int64_t size) {
  size_ = std::clamp(size, sizes.lowest, sizes.highest);
  storedSize_.set(size_);
  platform_.widgetCenter.reloadAllTimelines();
  changed();
}

void CustomDateTextView::pickFont() {
  showingFontPicker_ = true;
  changed();
}

void CustomDateTextView::dismissFontPicker() {
  showingFontPicker_ = false;
  changed();
}

DisplayList CustomDateTextView::face(const PointSize& frame) const {
  const DateTime& dateTime = platform_.dateTime;
  const View date =
      text(dateTime.text(dateTime.now(), FormatterStyle::longForm, FormatterStyle::none),
           {.name = font_, .size = static_cast<double>(size_)}, colour_, TextAlignment::centre);
  return layOut(shadowed(date, {.colour = {0, 0, 0, 0.3}, .x = 3, .y = 3}), frame,
                platform_.drawing);
}

} // namespace vitrelle
