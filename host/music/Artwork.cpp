#include "host/music/Artwork.h"

#include "host/files/Descriptor.h"
#include "host/imaging/JpegReader.h"
#include "host/imaging/PngReader.h"
#include "host/painting/PainterValues.h"

#include <QFile>
#include <QUrl>

#include <algorithm>
#include <memory>
#include <span>

#include <fcntl.h>
#include <sys/stat.h>

namespace vitrelle::host {

namespace {

using Bytes = std::span<const std::uint8_t>;

struct Format {
  bool (*matches)(Bytes);
  Result<PixelSize> (*size)(Bytes);
  Result<DecodedPicture> (*decode)(Bytes);
};

Result<PixelSize> pngSize(Bytes bytes) {
  const Result<PngHeader> header = readPngHeader(bytes);
  if (!header) return header.failure();
  return header->size;
}

constexpr Format formats[] = {{isPng, pngSize, decodePng}, {isJpeg, readJpegSize, decodeJpeg}};

bool isWithin(const PixelSize& size, const ArtworkLimits& limits) {
  return std::max(size.width, size.height) <= limits.pixelsOfASide;
}

/// As large as the limits allow, without changing its proportions.
Bitmap madeSmaller(const Bitmap& bitmap, std::int32_t side) {
  if (std::max(bitmap.size.width, bitmap.size.height) <= side) return bitmap;
  const auto format = bitmap.opaque ? QImage::Format_RGBX8888 : QImage::Format_RGBA8888;
  const auto small = std::make_shared<QImage>(
      qImage(bitmap)
          .scaled({side, side}, Qt::KeepAspectRatio, Qt::SmoothTransformation)
          .convertToFormat(format));
  return {.size = {small->width(), small->height()},
          .bytesPerRow = static_cast<std::size_t>(small->bytesPerLine()),
          .pixels = small->constBits(),
          .opaque = bitmap.opaque,
          .owner = small};
}

} // namespace

std::optional<Image> decodeArtwork(const QByteArray& bytes, const ArtworkLimits& limits) {
  const Bytes file(reinterpret_cast<const std::uint8_t*>(bytes.constData()),
                   static_cast<std::size_t>(bytes.size()));
  const auto* const format =
      std::ranges::find_if(formats, [&](const Format& each) { return each.matches(file); });
  if (format == std::end(formats)) return std::nullopt;
  const Result<PixelSize> size = format->size(file);
  if (!size || !isWithin(*size, limits)) return std::nullopt;
  const Result<DecodedPicture> picture = format->decode(file);
  if (!picture) return std::nullopt;
  const Bitmap small = madeSmaller(picture->bitmap, limits.side);
  if (small.size.width == 0 || small.size.height == 0) return std::nullopt; // a mere line
  return Image(small, picture->profile);
}

QByteArray bytesInAddress(const QString& address) {
  const qsizetype comma = address.indexOf(QLatin1Char(','));
  if (comma < 0) return {};
  const QByteArray carried = QByteArray::fromPercentEncoding(address.mid(comma + 1).toLatin1());
  const bool isBase64 =
      address.left(comma).endsWith(QStringLiteral(";base64"), Qt::CaseInsensitive);
  return isBase64 ? QByteArray::fromBase64(carried) : carried;
}

std::optional<ArtworkFile> readArtwork(const QString& path, const ArtworkLimits& limits,
                                       const std::optional<FileIdentity>& known) {
  // A pipe would be waited for, were it not opened in this way.
  const Descriptor opened(
      open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY));
  struct stat status {};
  if (!opened || fstat(opened.get(), &status) != 0 || !S_ISREG(status.st_mode)) return std::nullopt;
  if (status.st_size > limits.bytes) return std::nullopt;
  const FileIdentity identity{.device = status.st_dev,
                              .inode = status.st_ino,
                              .bytes = status.st_size,
                              .seconds = status.st_mtim.tv_sec,
                              .nanoseconds = status.st_mtim.tv_nsec};
  if (identity == known) return ArtworkFile{identity, {}};
  QFile file;
  if (!file.open(opened.get(), QIODevice::ReadOnly)) return std::nullopt;
  return ArtworkFile{identity, file.read(limits.bytes)};
}

} // namespace vitrelle::host
