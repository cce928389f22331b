#include "host/imaging/PixelBuffer.h"

#include <new>

#include <sys/mman.h>

namespace vitrelle::host {

std::shared_ptr<std::uint8_t> allocatePixels(std::size_t size) {
  constexpr std::size_t hugePage = std::size_t{2} << 20;
  const std::size_t needed = size + pixelBufferSlack;
  if (needed < hugePage) {
    auto* bytes = new (std::nothrow) std::uint8_t[needed];
    return {bytes, std::default_delete<std::uint8_t[]>()};
  }
  // Mapped a page too long, so that it can be cut to start at a huge page.
  const std::size_t mapped = needed + hugePage;
  void* memory = mmap(nullptr, mapped, PROT_READ | PROT_WRITE,
                      MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
  if (memory == MAP_FAILED) return nullptr;
  auto* start = static_cast<std::uint8_t*>(memory);
  const std::size_t skip =
      (hugePage - reinterpret_cast<std::uintptr_t>(start) % hugePage) % hugePage;
  madvise(start + skip, needed, MADV_HUGEPAGE);
  return {start + skip, [start, mapped](std::uint8_t*) { munmap(start, mapped); }};
}

} // namespace vitrelle::host
