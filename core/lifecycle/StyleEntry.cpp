#include "core/lifecycle/StyleEntry.h"

namespace vitrelle {

void StyleEntry::appear() {
  storedDataArray_->load();
  changed();
}

bool StyleEntry::canRead() {
  if (!storedDataArray_->loaded()) storedDataArray_->load();
  if (!storedDataArray_->loaded()) platform_.haptics.error();
  return storedDataArray_->loaded();
}

void StyleEntry::tapCreate() {
  if (!hasEditor_ || !canRead()) return;
  if (storedDataArray_->count() < maximumWidgetStyles) {
    platform_.haptics.lightImpact();
    showCreate_ = !showCreate_;
  } else {
    platform_.haptics.error();
    showingOverAlert_ = true;
  }
  changed();
}

void StyleEntry::tapGallery() {
  platform_.haptics.lightImpact();
  showGallery_ = !showGallery_;
  changed();
}

void StyleEntry::tapPreview() {
  if (!canRead()) return;
  if (storedDataArray_->count() != 0) {
    platform_.haptics.lightImpact();
    showPreview_ = !showPreview_;
  } else {
    platform_.haptics.error();
    showingNoConfigAlert_ = true;
  }
  changed();
}

void StyleEntry::dismissSheet() {
  showCreate_ = showGallery_ = showPreview_ = false;
  appear();
}

void StyleEntry::dismissAlert() {
  showingOverAlert_ = showingNoConfigAlert_ = false;
  changed();
}

std::optional<Alert> StyleEntry::alert() const {
  if (showingOverAlert_) return Alert{words_.overLimitTitle, words_.overLimitMessage};
  if (showingNoConfigAlert_) return Alert{familyWords::noPreviewTitle, words_.noPreviewMessage};
  return std::nullopt;
}

} // namespace vitrelle
