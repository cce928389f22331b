#include "core/centre/LocationSettingsView.h"

#include <utility>

namespace vitrelle {

LocationSettingsView::LocationSettingsView(const Platform& platform) : platform_(platform) {
  choices_ = platform.locationSettings.watch([this](const LocationChoice& choice) {
    choice_ = choice;
    changed();
  });
}

void LocationSettingsView::setPermission(AuthorizationStatus permission) {
  LocationChoice choice = choice_;
  choice.permission = permission;
  save(choice);
}

void LocationSettingsView::setSource(LocationSource source) {
  LocationChoice choice = choice_;
  choice.source = source;
  save(choice);
}

void LocationSettingsView::search(std::string words) {
  words_ = std::move(words);
  isUnknown_ = false;
  if (words_.find_first_not_of(' ') == std::string::npos) {
    found_.clear();
    asked_.cancel();
    changed();
    return;
  }
  asked_ =
      platform_.geocoder.search(words_, mostFound, [this](const Result<std::vector<City>>& cities) {
        trouble_ = cities ? std::nullopt : std::optional(cities.failure());
        found_ = cities ? *cities : std::vector<City>();
        isUnknown_ = cities && found_.empty();
        changed();
      });
  changed();
}

void LocationSettingsView::pick(std::size_t index) {
  if (index >= found_.size()) return;
  LocationChoice choice = choice_;
  choice.source = LocationSource::place;
  choice.city = found_[index];
  if (choice.permission == AuthorizationStatus::notDetermined)
    choice.permission = AuthorizationStatus::authorizedWhenInUse;
  words_.clear();
  found_.clear();
  asked_.cancel();
  save(choice);
}

void LocationSettingsView::save(const LocationChoice& choice) {
  const Status kept = platform_.locationSettings.save(choice);
  trouble_ = kept ? std::nullopt : std::optional(kept.failure());
  changed();
}

} // namespace vitrelle
