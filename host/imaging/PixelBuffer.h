// Memory for whole pictures.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>

namespace vitrelle::host {

/// Uninitialised bytes, or null when there is no memory. A few bytes beyond the size may be read
/// and written, so that vector code needs no special last step. Large buffers come in huge pages
/// where the system has them: faulting in small pages costs as much as filtering the picture.
std::shared_ptr<std::uint8_t> allocatePixels(std::size_t size);

/// How many bytes beyond the size may be touched.
inline constexpr std::size_t pixelBufferSlack = 64;

} // namespace vitrelle::host
