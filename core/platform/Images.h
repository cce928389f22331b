// Pictures in files: reading them, and writing PNG.
#pragma once

#include "core/platform/Data.h"
#include "core/platform/Image.h"
#include "core/platform/Result.h"

#include <functional>
#include <span>
#include <string>
#include <vector>

namespace vitrelle {

/// One file to be written: the image, lossless, at its own size and with its colour profile.
struct PngFile {
  std::string path;
  Image image;
};

struct Images {
  /// Opens a picture file of a known format (PNG, JPEG, HEIC). Its header is checked now and its
  /// pixels are decoded when first asked for, from the file as it is now, even if it is replaced
  /// later. Orientation flags are ignored.
  std::function<Result<Image>(const std::string& path)> load;

  /// Decodes the images' pixels ahead of their first use, several at once where that is faster;
  /// the first failure, if any.
  std::function<Status(std::span<const Image>)> decode;

  /// The image stretched to another size, as a picture with an alpha channel. Colours are weighted
  /// by their alpha: what is transparent lends no colour to its neighbours. Keeps the profile.
  std::function<Result<Image>(const Image&, const PixelSize&)> resized;

  /// The image as the bytes of a PNG file.
  std::function<Result<Data>(const Image&)> pngRepresentation;

  /// Writes each file whole, replacing what was there, as if one after the other: a later file
  /// never appears before an earlier one, and one that fails does not stop the next. The sizes
  /// in bytes, or the failures, in the order given. Encoding may use several threads.
  std::function<std::vector<Result<std::size_t>>(std::span<const PngFile>)> writePngFiles;
};

} // namespace vitrelle
