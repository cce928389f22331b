// What a reader makes of a file.
#pragma once

#include "core/platform/Image.h"

namespace vitrelle::host {

struct DecodedPicture {
  Bitmap bitmap;
  ColourProfile profile;
};

} // namespace vitrelle::host
