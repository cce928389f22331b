// A picture file as an image: its header is checked at once, its pixels are decoded on demand.
#pragma once

#include "core/platform/Images.h"
#include "host/files/HomeFolder.h"

#include <string>

namespace vitrelle::host {

/// As `Images::load` tells. The file stays open, so that the image is the one that the path led to
/// at this moment, whatever is put there later.
Result<Image> loadImageFile(const std::string& path);

/// All operations on pictures; files are written by way of the home folder. While an image of a
/// file is held, and the file does not change, loading it again opens and reads nothing. Each image
/// still decodes its own pixels, so that those who hold many hold no pixels.
Images makeImages(const HomeFolder& home);

} // namespace vitrelle::host
