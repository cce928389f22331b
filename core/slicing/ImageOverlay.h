// The cut-out picture of an Image widget style as a file of the group folder.
#pragma once

#include "core/platform/Platform.h"
#include "core/store/Numbers.h"

#include <string>

namespace vitrelle {

/// How wide each is, whatever it was made from. Pixels.
inline constexpr std::int32_t overlayWidth = 800;

/// "overlayImage3.png" for the record of index 3.
std::string overlayFileName(RecordIndex index);

/// The picture at the width of an overlay, in its own proportions. A broken row of pixels at the
/// bottom counts whole.
Result<Image> overlayOf(const Platform& platform, const Image& picture);

/// Stores the picture as the record's overlay, in the place of the one before.
Status storeOverlay(const Platform& platform, const Image& picture, RecordIndex index);

} // namespace vitrelle
