// A picture as the logic handles it: a cheap, immutable handle on a bitmap that may not have been
// decoded yet.
#pragma once

#include "core/platform/ColourProfile.h"
#include "core/platform/Data.h"
#include "core/platform/Result.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>

namespace vitrelle {

struct PixelSize {
  std::int32_t width = 0;
  std::int32_t height = 0;
  bool operator==(const PixelSize&) const = default;
};

/// In pixels, origin top left, y down.
struct PixelRect {
  std::int64_t x = 0;
  std::int64_t y = 0;
  std::int64_t width = 0;
  std::int64_t height = 0;
  bool operator==(const PixelRect&) const = default;
};

/// A view of 8-bit RGBA pixels with straight alpha, in memory that `owner` keeps alive.
struct Bitmap {
  PixelSize size;
  std::size_t bytesPerRow = 0;          ///< at least 4 times the width; rows may be unaligned
  const std::uint8_t* pixels = nullptr; ///< first byte (red) of the top left pixel
  bool opaque = false;                  ///< every alpha sample is known to be 255
  std::shared_ptr<const void> owner;

  const std::uint8_t* row(std::int32_t y) const {
    return pixels + static_cast<std::size_t>(y) * bytesPerRow;
  }
};

/// A file at one moment: another file, or one that was written into since, has another identity.
struct FileIdentity {
  std::uint64_t device = 0;
  std::uint64_t inode = 0;
  std::int64_t bytes = 0;
  std::int64_t seconds = 0; ///< of the last change, since 1970
  std::int64_t nanoseconds = 0;
  bool operator==(const FileIdentity&) const = default;
};

/// Where an image's pixels come from. Implementations are immutable and safe to use from several
/// threads at once.
class ImageSource {
 public:
  virtual ~ImageSource() = default;
  virtual PixelSize size() const = 0;
  virtual const ColourProfile& profile() const = 0;
  /// Decodes at the first call, if need be.
  virtual Result<Bitmap> bitmap() const = 0;
  /// The file that they come from, if they come from one.
  virtual std::optional<FileIdentity> file() const { return std::nullopt; }
  /// The bytes of that file, as they were when it was opened.
  virtual Result<Data> fileData() const { return Failure{"picture", "it comes from no file"}; }
};

/// Two images are equal when they are the same object, or of the same file with the same content.
class Image final {
 public:
  explicit Image(std::shared_ptr<const ImageSource> source);
  /// An image of pixels in memory.
  explicit Image(Bitmap bitmap, ColourProfile profile = {});

  PixelSize size() const { return source_->size(); }
  const ColourProfile& profile() const { return source_->profile(); }
  /// The pixels, decoded if they are not yet, or why they can't be had.
  Result<Bitmap> bitmap() const { return source_->bitmap(); }
  std::optional<FileIdentity> file() const { return source_->file(); }
  /// The bytes of the file that it was loaded from, as they were then.
  Result<Data> fileData() const { return source_->fileData(); }

  /// The part of the image inside the rectangle, as a view: no pixel is copied. The rectangle is
  /// first cut to the bitmap. Nothing when there is no bitmap or nothing is left of the rectangle.
  std::optional<Image> cropped(const PixelRect& rect) const;

  bool operator==(const Image& other) const;

 private:
  std::shared_ptr<const ImageSource> source_;
};

} // namespace vitrelle
