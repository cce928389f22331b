// Pictures at another size, as good as they can be had: what is cut out of a photo shows each fault
// at its edge.
#pragma once

#include "core/platform/Image.h"

namespace vitrelle::host {

/// The picture stretched to the size. The filter is Mitchell and Netravali's cubic with B = C =
/// 1/3, first down the columns, then along the rows: sharp, and nearly without rings, which would
/// show around whatever stands on transparent ground. Where the picture gets smaller the filter is
/// as much wider, so that all pixels count alike. A direction that keeps its size is left as it is.
/// Colours are weighted by their alpha, and what is left transparent is black. Needs memory for the
/// result and a row. Fails on sizes out of bounds.
Result<Bitmap> resizeBitmap(const Bitmap& source, const PixelSize& size);

} // namespace vitrelle::host
