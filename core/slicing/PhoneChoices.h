// What the choice of a phone means for its slots: where a phone has measurements, and under which
// system.
#pragma once

#include "core/platform/Platform.h"
#include "core/slicing/WidgetMeasurements.h"

#include <string>
#include <string_view>
#include <vector>

namespace vitrelle {

/// The systems differ in two generations.
constexpr OsVersion firstOs18{18, 0, 0};
/// Stands for all before, where nothing more exact is known.
constexpr OsVersion osBefore18{17, 0, 0};

constexpr bool isOs18(const OsVersion& os) {
  return os >= firstOs18;
}

/// In which settings of its display a phone has measurements.
enum class MeasuredDisplays { none, standard, zoomed, both };

MeasuredDisplays measuredDisplays(std::string_view device, bool os18);

/// All 0 where there are none.
WidgetMeasurements measurementsOf(std::string_view device, bool os18, bool zoomed);

/// The system that a phone is taken to have beside the one that is set: the other generation where
/// the phone was measured in that one alone, for then it never had this one.
OsVersion suitedOs(std::string_view device, const OsVersion& set);

/// The model that an identifier is of; null for one that no model has.
const PhoneModel* findModel(const std::vector<PhoneModel>& models, std::string_view identifier);

/// The name that an identifier has among the models, else in the table of devices; an identifier
/// that neither knows is its own name.
std::string phoneName(const Platform& platform, std::string_view identifier);

/// Whether its display has a setting in which everything is larger.
bool canZoom(const PhoneModel& model);

/// Makes it the phone of this program at once. Fails where it can't be kept for later ones.
Status choosePhone(const Platform& platform, const PhoneChoice& choice);

} // namespace vitrelle
