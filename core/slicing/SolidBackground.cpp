#include "core/slicing/SolidBackground.h"

#include "core/store/ColourComponents.h"
#include "core/store/Keys.h"

#include <utility>

namespace vitrelle {

SolidBackground::SolidBackground(const Platform& platform, std::function<void()> changed)
    : platform_(platform),
      changed_(std::move(changed)),
      storedOn_(platform, keys::solidEnabled),
      storedColour_(platform, keys::backgroundSolid),
      on_(storedOn_.onChange([this](const std::optional<bool>& on) {
        isOn_ = on.value_or(false);
        changed_();
      })),
      text_(storedColour_.onChange([this](const std::optional<std::string>& text) {
        colour_ = parseColourComponents(text.value_or("")).value_or(colour_);
        changed_();
      })) {}

void SolidBackground::setOn(bool on) {
  isOn_ = on;
  storedOn_.set(on);
  platform_.widgetCenter.reloadAllTimelines();
  changed_();
}

void SolidBackground::setColour(const PlatformColour& colour) {
  colour_ = colour;
  storedColour_.set(colourComponents(colour));
  platform_.widgetCenter.reloadAllTimelines();
  changed_();
}

std::optional<PlatformColour> SolidBackground::stored() const {
  return parseColourComponents(storedColour_.getOrDefault());
}

} // namespace vitrelle
