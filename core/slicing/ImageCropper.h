// The heart of the system: cuts one screenshot into the slices of the eleven widget slots and
// stores them, with a copy of the whole, where widgets find them.
#pragma once

#include "core/platform/Platform.h"
#include "core/slicing/WidgetLocation.h"

#include <string>
#include <vector>

namespace vitrelle {

/// What became of one file.
struct StoredSlice {
  std::string fileName;
  PixelSize size;
  Result<std::size_t> bytes; ///< the file's size, or why it was not written
};

/// Every operation runs on the caller's thread until its files are written. Failures are silent
/// and leave what is on disk: screens ignore the lists given back; the command line reports them.
class ImageCropper final {
 public:
  explicit ImageCropper(const Platform& platform) : platform_(platform) {}

  /// The complete run for one screenshot: the whole image first, then the small, medium and large
  /// slots, then a reload of the widgets. The image is cut by the device's measurements whatever
  /// its size; a slot that lies outside it ends its family, not the others.
  std::vector<StoredSlice> store(const Image& image, InterfaceStyle style,
                                 StyleNumber number) const;

  std::vector<StoredSlice> cropSmall(const Image& image, InterfaceStyle style,
                                     StyleNumber number) const;
  std::vector<StoredSlice> cropMedium(const Image& image, InterfaceStyle style,
                                      StyleNumber number) const;
  std::vector<StoredSlice> cropLarge(const Image& image, InterfaceStyle style,
                                     StyleNumber number) const;

  /// Writes one image under the name with ".png" added.
  std::vector<StoredSlice> save(const Image& image, const std::string& name) const;

  /// Reports the screen's size on the debug console; gives its pixels, "1179x2556". A size that is
  /// not finite or not in the range of 64 bits is a fatal error.
  std::string screenResolution() const;

 private:
  struct Slice {
    std::string fileName;
    Image image;
  };
  std::vector<Slice> cut(const Image& image, WidgetFamily family, InterfaceStyle style,
                         StyleNumber number) const;
  std::vector<StoredSlice> write(const std::vector<Slice>& slices) const;

  const Platform& platform_;
};

} // namespace vitrelle
