// The five numbers from which all eleven widget slots of a home screen follow.
#pragma once

#include <cstdint>

namespace vitrelle {

/// In pixels of a full-screen screenshot, origin top left, y down.
struct WidgetMeasurements {
  std::int64_t widgetSize = 0;        ///< side of a small widget; 0: the device is not supported
  std::int64_t topSpacing = 0;        ///< top edge of the screen to the first row
  std::int64_t leftSpacing = 0;       ///< left edge of the screen to the left column
  std::int64_t horizontalSpacing = 0; ///< left edge of one column to that of the next
  std::int64_t verticalSpacing = 0;   ///< top edge of one row to that of the next
  bool operator==(const WidgetMeasurements&) const = default;
};

} // namespace vitrelle
