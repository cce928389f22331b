// Where the widget slots of each phone's home screen lie: data, measured, not computed.
#pragma once

#include "core/slicing/WidgetMeasurements.h"

#include <span>
#include <string_view>

namespace vitrelle {

enum class MeasurementTable {
  iOS18,   ///< OS 18 or later, display not zoomed
  classic, ///< an OS before 18, display not zoomed
  zoomed,  ///< display zoomed, whatever the OS
};

struct DeviceMeasurements {
  std::string_view device;
  WidgetMeasurements measurements;
};

/// The rows of a table, in its own order. No device stands twice in one.
std::span<const DeviceMeasurements> measurementRows(MeasurementTable table);

/// A device's row of a table; null where it has none.
const DeviceMeasurements* findMeasurements(std::string_view device, MeasurementTable table);

} // namespace vitrelle
