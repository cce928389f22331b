#include "core/lifecycle/StyleEntry.h"

namespace vitrelle {

void StyleEntry::appear() {
  storedDataArray_.load();
  changed();
}

bool StyleEntry::canRead() {
  if (!storedDataArray_.loaded()) storedDataArray_.load();
  if (!storedDataArray_.loaded()) platform_.haptics.error();
  return storedDataArray_.loaded();
}

void StyleEntry::tapCreate() {
  if (!canRead()) return;
  if (storedDataArray_.count() < maximumWidgetStyles) {
    platform_.haptics.lightImpact();
    toggle(FlowStart::create);
  } else {
    platform_.haptics.error();
    showingOverAlert_ = true;
  }
  changed();
}

void StyleEntry::tapGallery() {
  platform_.haptics.lightImpact();
  toggle(FlowStart::gallery);
  changed();
}

void StyleEntry::tapPreview() {
  if (!canRead()) return;
  if (storedDataArray_.count() != 0) {
    platform_.haptics.lightImpact();
    toggle(FlowStart::preview);
  } else {
    platform_.haptics.error();
    showingNoConfigAlert_ = true;
  }
  changed();
}

void StyleEntry::toggle(FlowStart start) {
  if (shows(start)) {
    flow_.reset();
    return;
  }
  start_ = start;
  flow_ = std::make_shared<StyleFlow>(platform_, family_, start, [this] { dismissSheet(); });
}

void StyleEntry::dismissSheet() {
  flow_.reset();
  appear();
}

void StyleEntry::dismissAlert() {
  showingOverAlert_ = showingNoConfigAlert_ = false;
  changed();
}

std::optional<Alert> StyleEntry::alert() const {
  const FamilyDescription& words = family_.words();
  if (showingOverAlert_) return Alert{words.overLimitTitle, words.overLimitMessage};
  if (showingNoConfigAlert_) return Alert{familyWords::noPreviewTitle, words.noPreviewMessage};
  return std::nullopt;
}

} // namespace vitrelle
