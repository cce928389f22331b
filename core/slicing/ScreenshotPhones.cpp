#include "core/slicing/ScreenshotPhones.h"

#include "core/slicing/PhoneChoices.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace vitrelle {

namespace {

PixelSize pixels(const PointSize& bounds, double scale) {
  return {static_cast<std::int32_t>(std::lround(bounds.width * scale)),
          static_cast<std::int32_t>(std::lround(bounds.height * scale))};
}

PixelSize pixels(const ScreenMode& mode) {
  return pixels(mode.bounds, mode.scale);
}

/// One phone in one setting.
struct Candidate {
  const PhoneModel* model;
  bool zoomed;
  OsVersion os;
  WidgetMeasurements measurements;
};

bool isOf(const PhoneModel& model, const std::string& identifier) {
  return std::ranges::count(model.identifiers, identifier) != 0;
}

std::vector<Candidate> candidates(const std::vector<PhoneModel>& models, const PhoneChoice& present,
                                  const PixelSize& size) {
  std::vector<Candidate> found;
  for (const bool zoomed : {false, true}) {
    for (const PhoneModel& model : models) {
      if (zoomed && !canZoom(model)) continue;
      if (!(pixels(zoomed ? model.zoomed : model.standard) == size)) continue;
      const OsVersion os = suitedOs(model.name, present.os);
      found.push_back({&model, zoomed, os, measurementsOf(model.name, isOs18(os), zoomed)});
    }
  }
  const auto isUnmeasured = [](const Candidate& each) { return each.measurements.widgetSize == 0; };
  if (!std::ranges::all_of(found, isUnmeasured)) std::erase_if(found, isUnmeasured);
  std::stable_partition(found.begin(), found.end(), [&](const Candidate& each) {
    return isOf(*each.model, present.identifier);
  });
  return found;
}

} // namespace

std::vector<ScreenshotOrigin> screenshotOrigins(const std::vector<PhoneModel>& models,
                                                const PhoneChoice& present, const PixelSize& size) {
  std::vector<ScreenshotOrigin> origins;
  std::vector<WidgetMeasurements> measured; // of each
  for (const Candidate& each : candidates(models, present, size)) {
    const auto same = std::ranges::find(measured, each.measurements) - measured.begin();
    if (std::cmp_equal(same, measured.size())) {
      measured.push_back(each.measurements);
      const std::string identifier = isOf(*each.model, present.identifier)
                                         ? present.identifier
                                         : each.model->identifiers.front();
      origins.push_back({.choice = {.identifier = identifier,
                                    .os = each.os,
                                    .zoomed = each.zoomed,
                                    .appearance = present.appearance},
                         .phones = {},
                         .isMeasured = each.measurements.widgetSize != 0});
    }
    origins[static_cast<std::size_t>(same)].phones.push_back({each.model->name, each.zoomed});
  }
  return origins;
}

PixelSize screenshotSize(const Device& device) {
  return pixels(device.screenBounds(), device.screenScale());
}

void IncomingScreenshots::receive(InterfaceStyle style, const Image& image) {
  if (isAsking()) {
    waiting_.emplace_back(style, image);
    return;
  }
  std::vector<ScreenshotOrigin> origins;
  if (!(image.size() == screenshotSize(platform_.device))) {
    origins = screenshotOrigins(platform_.phoneBook.models(), platform_.phoneBook.current(),
                                image.size());
  }
  if (origins.empty()) {
    handOn_(style, image);
    return;
  }
  size_ = image.size();
  origins_ = std::move(origins);
  waiting_.emplace_back(style, image);
  changed();
}

Status IncomingScreenshots::pick(std::size_t origin) {
  if (!isAsking() || origin >= origins_.size()) return success();
  Status kept = choosePhone(platform_, origins_[origin].choice);
  handOnAll();
  return kept;
}

void IncomingScreenshots::handOnAll() {
  const auto waiting = std::exchange(waiting_, {});
  for (const auto& [style, image] : waiting)
    handOn_(style, image);
  changed();
}

void IncomingScreenshots::cancel() {
  waiting_.clear();
  changed();
}

} // namespace vitrelle
