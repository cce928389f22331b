// Writes several pictures as PNG files at once.
#pragma once

#include "core/platform/Images.h"
#include "host/files/HomeFolder.h"

#include <span>
#include <vector>

namespace vitrelle::host {

/// As `Images::writePngFiles` tells. Threads take the biggest pictures first, or, where the
/// disk may not hold all of them, one thread the smallest; the files appear in the order given.
std::vector<Result<std::size_t>> writePngFiles(const HomeFolder& home,
                                               std::span<const PngFile> files);

} // namespace vitrelle::host
