#include "core/slicing/PhoneChoices.h"

#include "core/slicing/DeviceNames.h"
#include "core/slicing/MeasurementTables.h"
#include "core/slicing/Measurements.h"

#include <algorithm>
#include <string>

namespace vitrelle {

namespace {

const DeviceMeasurements* find(std::string_view device, bool os18, bool zoomed) {
  const MeasurementSituation situation{
      .deviceName = std::string(device), .os18 = os18, .zoomed = zoomed};
  return findMeasurements(device, Measurements::tableFor(situation));
}

} // namespace

MeasuredDisplays measuredDisplays(std::string_view device, bool os18) {
  using enum MeasuredDisplays;
  const bool inStandard = find(device, os18, false) != nullptr;
  const bool inZoomed = find(device, os18, true) != nullptr;
  if (inStandard) return inZoomed ? both : standard;
  return inZoomed ? zoomed : none;
}

WidgetMeasurements measurementsOf(std::string_view device, bool os18, bool zoomed) {
  const DeviceMeasurements* found = find(device, os18, zoomed);
  return found == nullptr ? WidgetMeasurements{} : found->measurements;
}

OsVersion suitedOs(std::string_view device, const OsVersion& set) {
  const bool os18 = isOs18(set);
  const bool neverHadIt =
      find(device, os18, false) == nullptr && find(device, !os18, false) != nullptr;
  if (!neverHadIt) return set;
  return os18 ? osBefore18 : firstOs18;
}

const PhoneModel* findModel(const std::vector<PhoneModel>& models, std::string_view identifier) {
  const auto found = std::ranges::find_if(models, [&](const PhoneModel& model) {
    return std::ranges::count(model.identifiers, identifier) != 0;
  });
  return found == models.end() ? nullptr : &*found;
}

std::string phoneName(const Platform& platform, std::string_view identifier) {
  const auto models = platform.phoneBook.models();
  const PhoneModel* model = findModel(models, identifier);
  return model != nullptr ? model->name : modelName(identifier, platform.device);
}

bool canZoom(const PhoneModel& model) {
  return !(model.zoomed.bounds == model.standard.bounds);
}

Status choosePhone(const Platform& platform, const PhoneChoice& choice) {
  Status kept = platform.phoneBook.save(choice);
  forgetDevice(platform);
  return kept;
}

} // namespace vitrelle
