#include "core/lifecycle/StyleAssign.h"

#include "core/store/Listing.h"

#include <algorithm>

namespace vitrelle {

namespace {

/// As the debug console shows a list: "[0, 2]".
std::string inWords(const std::vector<std::int64_t>& numbers) {
  std::string text = "[";
  for (const std::int64_t number : numbers)
    text += (text.size() > 1 ? ", " : "") + std::to_string(number);
  return text + "]";
}

} // namespace

void StyleAssign::appear() {
  img_ = currentSlice(platform_, WidgetLocationImageNames::mediumTop);
  stored().load();
  findInvalidConfigs();
  for (std::size_t i = 0; i < stored().count(); ++i) {
    if (stored().tag(i) == configNumber_) copy(i);
  }
  changed();
}

void StyleAssign::findInvalidConfigs() {
  invalidConfigs_.clear();
  const std::int64_t amount = amountOfConfigs_.getOrDefault();
  for (std::size_t i = 0; i < stored().count(); ++i) {
    const std::int64_t linked = stored().linked(i);
    if (linked >= 0 && linked < amount) invalidConfigs_.push_back(linked);
  }
  platform_.debugConsole.print(inWords(invalidConfigs_));
}

std::vector<AssignOption> StyleAssign::options() const {
  std::vector<AssignOption> options{{std::string(familyWords::noStyle), noLinkedConfig}};
  const std::int64_t amount = listed(amountOfConfigs_.getOrDefault());
  for (std::int64_t i = 0; i < amount; ++i)
    options.push_back({std::to_string(i + 1), i});
  return options;
}

void StyleAssign::pick(std::int64_t vitrelleConfig) {
  vitrelleConfig_ = vitrelleConfig;
  changed();
}

bool StyleAssign::save() {
  if (std::ranges::find(invalidConfigs_, vitrelleConfig_) != invalidConfigs_.end()) {
    showingAlert_ = true;
    platform_.haptics.error();
    changed();
    return false;
  }
  // The store may have lost the records since; then the flow ends as if they were written.
  if (configNumber_ >= 0 && static_cast<std::size_t>(configNumber_) < stored().count()) {
    stored().setLinked(static_cast<std::size_t>(configNumber_), vitrelleConfig_);
    isSaved_ = stored().save();
  }
  platform_.haptics.success();
  return true;
}

void StyleAssign::dismissAlert() {
  showingAlert_ = false;
  changed();
}

std::optional<Alert> StyleAssign::alert() const {
  if (!showingAlert_) return std::nullopt;
  return Alert{familyWords::refusalTitle, words_.assignRefusal};
}

} // namespace vitrelle
