#include "core/platform/Image.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace vitrelle {

namespace {

class MemoryImage final : public ImageSource {
 public:
  MemoryImage(Bitmap bitmap, ColourProfile profile)
      : bitmap_(std::move(bitmap)), profile_(std::move(profile)) {}

  PixelSize size() const override { return bitmap_.size; }
  const ColourProfile& profile() const override { return profile_; }
  Result<Bitmap> bitmap() const override { return bitmap_; }

 private:
  Bitmap bitmap_;
  ColourProfile profile_;
};

struct Span {
  std::int64_t start = 0;
  std::int64_t length = 0;
};

/// The part of [start, start + length) that lies in [0, limit).
Span intersect(std::int64_t start, std::int64_t length, std::int32_t limit) {
  if (length <= 0 || start >= limit) return {};
  const std::int64_t farthest = std::numeric_limits<std::int64_t>::max() - length;
  const std::int64_t end = start > farthest ? limit : std::min<std::int64_t>(start + length, limit);
  const std::int64_t begin = std::max<std::int64_t>(start, 0);
  return end > begin ? Span{begin, end - begin} : Span{};
}

} // namespace

Image::Image(std::shared_ptr<const ImageSource> source) : source_(std::move(source)) {}

Image::Image(Bitmap bitmap, ColourProfile profile)
    : source_(std::make_shared<MemoryImage>(std::move(bitmap), std::move(profile))) {}

bool Image::operator==(const Image& other) const {
  if (source_ == other.source_) return true;
  return file() && file() == other.file();
}

std::optional<Image> Image::cropped(const PixelRect& rect) const {
  Result<Bitmap> whole = bitmap();
  if (!whole) return std::nullopt;
  const Span columns = intersect(rect.x, rect.width, whole->size.width);
  const Span rows = intersect(rect.y, rect.height, whole->size.height);
  if (columns.length == 0 || rows.length == 0) return std::nullopt;

  Bitmap part = *std::move(whole);
  part.pixels = part.row(static_cast<std::int32_t>(rows.start)) + columns.start * 4;
  part.size = {static_cast<std::int32_t>(columns.length), static_cast<std::int32_t>(rows.length)};
  return Image(std::move(part), profile());
}

} // namespace vitrelle
