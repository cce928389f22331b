// The lookup of a device's widget measurements.
#pragma once

#include "core/platform/Platform.h"
#include "core/slicing/MeasurementTables.h"

#include <functional>
#include <map>
#include <string>
#include <string_view>

namespace vitrelle {

/// One device's numbers by key: WIDGET_SIZE, TOP_SPACING, LEFT_SPACING, HORIZONTAL_SPACING,
/// VERTICAL_SPACING.
using MeasurementsByKey = std::map<std::string, std::int64_t, std::less<>>;
/// A table as it is looked up in, by device name.
using MeasurementsByDevice = std::map<std::string, MeasurementsByKey, std::less<>>;

/// What a lookup depends on.
struct MeasurementSituation {
  std::string deviceName; ///< as `deviceName` gives it, a simulator's included
  bool os18 = false;
  bool zoomed = false;
};

namespace Measurements {

/// A display is zoomed while its scale is below its native scale.
bool isZoomed(double scale, double nativeScale);

MeasurementTable tableFor(const MeasurementSituation& situation);

/// Turns the rows of a table into its dictionary.
MeasurementsByDevice dictionary(MeasurementTable table);

/// Looks the device up. Never fails: what is missing is 0, and all is 0 for an unknown device.
/// Debug lines go to `print`.
WidgetMeasurements lookUp(const MeasurementSituation& situation, const MeasurementsByDevice& table,
                          const std::function<void(const std::string&)>& print);

/// The measurements of the platform's device as its screen is set now. Only the table that is
/// needed is built, once for each platform.
WidgetMeasurements current(const Platform& platform);

} // namespace Measurements

} // namespace vitrelle
