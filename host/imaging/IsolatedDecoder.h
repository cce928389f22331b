// Decoding in a process of its own, for libraries that a hostile file can crash or make take
// memory without bound.
#pragma once

#include "core/platform/Result.h"
#include "host/imaging/DecodedPicture.h"

#include <functional>

namespace vitrelle::host {

/// Runs `decode` in a child process with bounded memory and time, and brings its picture (with or
/// without pixels) or its failure back. A crash there is a failure here, under the name `format`.
/// `decode` may use all that stands in memory at the call, and changes nothing of it.
Result<DecodedPicture> decodeIsolated(const std::string& format,
                                      const std::function<Result<DecodedPicture>()>& decode);

} // namespace vitrelle::host
