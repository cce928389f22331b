// Inflates the pixels of a PNG file. After PNG's filters most symbols are literals with short
// codes, so one look at the code table gives up to three of them.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <span>

namespace vitrelle::host {

/// Inflates a zlib stream that holds exactly `size` bytes to `out`, behind which 64 bytes more may
/// be written. False when the stream is damaged, incomplete or of another size. Now and then tells
/// `onProgress` how many bytes are there; of those, the last 32 KiB are still read.
bool inflateZlib(
    std::span<const std::uint8_t> stream, std::uint8_t* out, std::size_t size,
    const std::function<void(std::size_t)>& onProgress = [](std::size_t) {});

} // namespace vitrelle::host
