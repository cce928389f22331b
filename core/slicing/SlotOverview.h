// The slots drawn over a screenshot, for people who would rather look than read numbers.
#pragma once

#include "core/platform/Image.h"
#include "core/slicing/WidgetMeasurements.h"

#include <optional>

namespace vitrelle {

/// A copy of the screenshot with all eleven slots outlined: the six small ones lightened, the
/// medium and large ones, which cover several, as nested frames in colours of their own. Nothing
/// when the screenshot has no bitmap.
std::optional<Image> slotOverview(const Image& screenshot, const WidgetMeasurements& measurements);

} // namespace vitrelle
