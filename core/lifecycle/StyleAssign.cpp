#include "core/lifecycle/StyleAssign.h"

#include "core/store/Listing.h"

#include <algorithm>

namespace vitrelle {

namespace {

/// As the debug console shows a list: "[0, 2]".
std::string inWords(const std::vector<StyleNumber>& numbers) {
  std::string text = "[";
  for (const StyleNumber number : numbers)
    text += (text.size() > 1 ? ", " : "") + std::to_string(number.value);
  return text + "]";
}

} // namespace

StyleAssign::StyleAssign(const Platform& platform, const StyleFamily& family,
                         RecordIndex configNumber)
    : platform_(platform),
      family_(family),
      configNumber_(configNumber),
      storedDataArray_(platform, family.store()),
      amountOfConfigs_(platform, keys::amountOfConfigs),
      shown_(family.newDraft({})) {
  bindings_.push_back(amountOfConfigs_.onChange([this](const auto&) { changed(); }));
  bindings_.push_back(family.live(platform, [this] { changed(); }));
}

void StyleAssign::appear() {
  img_ = currentSlice(platform_, WidgetLocationImageNames::mediumTop);
  storedDataArray_.load();
  findInvalidConfigs();
  for (const StyleRecord& record : storedDataArray_.records) {
    if (tagOf(record) == configNumber_) shown_ = family_.draftOf(record);
  }
  changed();
}

void StyleAssign::findInvalidConfigs() {
  invalidConfigs_.clear();
  const StyleNumber amount{amountOfConfigs_.getOrDefault()};
  for (const StyleRecord& record : storedDataArray_.records) {
    const auto linked = linkedStyle(record);
    if (linked && *linked >= StyleNumber{} && *linked < amount) invalidConfigs_.push_back(*linked);
  }
  platform_.debugConsole.print(inWords(invalidConfigs_));
}

std::vector<AssignOption> StyleAssign::options() const {
  std::vector<AssignOption> options{{std::string(familyWords::noStyle), std::nullopt}};
  const std::int64_t amount = listed(amountOfConfigs_.getOrDefault());
  for (std::int64_t i = 0; i < amount; ++i)
    options.push_back({std::to_string(i + 1), StyleNumber{i}});
  return options;
}

void StyleAssign::pick(std::optional<StyleNumber> vitrelleConfig) {
  vitrelleConfig_ = vitrelleConfig;
  changed();
}

DisplayList StyleAssign::face(const PointSize& frame) const {
  return layOut(family_.draftFace(platform_, shown_, FaceUse::assign), frame, platform_.drawing);
}

Saved StyleAssign::save() {
  if (vitrelleConfig_ &&
      std::ranges::find(invalidConfigs_, *vitrelleConfig_) != invalidConfigs_.end()) {
    showingAlert_ = true;
    platform_.haptics.error();
    changed();
    return Saved::refused;
  }
  // The store may have lost the records since; then the flow ends as if they were written.
  bool isSaved = false;
  if (StyleRecord* record = storedDataArray_.at(configNumber_)) {
    setLinkedStyle(*record, vitrelleConfig_);
    isSaved = storedDataArray_.save();
  }
  platform_.haptics.success();
  return isSaved ? Saved::stored : Saved::notStored;
}

void StyleAssign::dismissAlert() {
  showingAlert_ = false;
  changed();
}

std::optional<Alert> StyleAssign::alert() const {
  if (!showingAlert_) return std::nullopt;
  return Alert{familyWords::refusalTitle, family_.words().assignRefusal};
}

} // namespace vitrelle
