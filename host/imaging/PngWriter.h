// Pictures as PNG files, fast and small: twelve of them stand between a screenshot and its widgets.
#pragma once

#include "core/platform/Image.h"
#include "host/imaging/PictureDeflate.h"

#include <cstdint>
#include <memory>
#include <span>
#include <vector>

namespace vitrelle::host {

/// Encodes one picture after the other and keeps its memory from one to the next. For one thread.
class PngWriter final {
 public:
  /// The bytes of a PNG file: 8-bit RGB when every pixel is opaque, else RGBA, with the profile.
  /// They are the writer's and last until the next call. Empty when there is no memory.
  std::span<const std::uint8_t> encode(const Bitmap& bitmap, const ColourProfile& profile);

 private:
  struct Layout;

  /// The zlib stream of the filtered rows, written at `out`; gives its end.
  std::uint8_t* compress(const Bitmap& bitmap, const Layout& layout, std::uint8_t* out);

  PictureDeflate deflate_;
  std::vector<std::uint8_t> blocks_; ///< filtered rows that wait to be compressed, and some before
  std::shared_ptr<std::uint8_t> file_;
  std::size_t fileCapacity_ = 0;
};

/// Whether every alpha sample is 255.
bool isOpaque(const Bitmap& bitmap);

} // namespace vitrelle::host
