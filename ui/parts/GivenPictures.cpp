#include "ui/parts/GivenPictures.h"

#include <QBuffer>
#include <QClipboard>
#include <QColorSpace>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QImage>
#include <QImageReader>
#include <QMimeDatabase>

#include <array>
#include <cerrno>
#include <cstring>
#include <memory>
#include <optional>
#include <string>
#include <utility>

#include <sys/mman.h>

namespace vitrelle::ui {

namespace {

constexpr qint64 mostPixels = qint64{64} << 20; ///< as many as the platform's own readers take
const char* const clipboardName = "the clipboard";

Image imageOf(const QImage& picture) {
  const auto pixels =
      std::make_shared<const QImage>(picture.convertToFormat(QImage::Format_RGBA8888));
  const QByteArray icc = picture.colorSpace().iccProfile();
  ColourProfile profile;
  profile.icc.assign(icc.begin(), icc.end());
  return Image(Bitmap{.size = {pixels->width(), pixels->height()},
                      .bytesPerRow = static_cast<std::size_t>(pixels->bytesPerLine()),
                      .pixels = pixels->constBits(),
                      .opaque = !picture.hasAlphaChannel(),
                      .owner = pixels},
               std::move(profile));
}

/// Whether the platform reads the format itself, and better: with all that Qt leaves out.
bool isOfPlatform(const QByteArray& format) {
  return format.isEmpty() || format == "png" || format == "jpeg" || format == "jpg" ||
         format == "heic" || format == "heif";
}

Result<Image> readByQt(QImageReader& reader, const std::string& what) {
  const QSize size = reader.size();
  if (qint64{size.width()} * size.height() > mostPixels)
    return Failure{what, "the picture is too large"};
  QImageReader::setAllocationLimit(
      static_cast<int>(mostPixels * 4 >> 20)); // of those without a size
  const QImage picture = reader.read();
  if (picture.isNull()) return Failure{what, reader.errorString().toStdString()};
  return imageOf(picture);
}

/// With its pixels, in the words of whoever gave it.
Result<Image> decoded(const Result<Image>& image, const std::string& what) {
  if (!image) return Failure{what, image.failure().why};
  if (const auto bitmap = image->bitmap(); !bitmap) return Failure{what, bitmap.failure().why};
  return *image;
}

/// The format in which a picture is offered, with alpha and all bits if there is one; empty where
/// there is none.
QString pictureFormat(const Offer& offer) {
  for (const char* best : {"image/png", "image/jpeg"}) {
    if (offer.formats.contains(QLatin1String(best))) return QLatin1String(best);
  }
  for (const QString& format : offer.formats) {
    if (format.startsWith(QLatin1String("image/"))) return format;
  }
  return {};
}

/// Pixels of this very program are offered without a format.
bool hasPixels(const Offer& offer) {
  return offer.formats.contains(QLatin1String("application/x-qt-image"));
}

} // namespace

Result<Image> givenFile(const Platform& platform, const QUrl& file) {
  const QString path = file.toLocalFile();
  if (path.isEmpty()) return Failure{file.toString().toStdString(), "it is no local file"};
  const std::string name = path.toStdString();
  Result<Image> image = decoded(platform.images.load(name), name);
  if (image || !QFileInfo(path).isFile()) return image; // one would wait for ever on a pipe
  QImageReader reader(path);
  return isOfPlatform(reader.format()) ? image : readByQt(reader, name);
}

Result<Image> givenBytes(const Platform& platform, const QByteArray& bytes, const char* from) {
  QBuffer buffer;
  buffer.setData(bytes);
  QImageReader reader(&buffer);
  if (!isOfPlatform(reader.format())) return readByQt(reader, from);
  // The platform reads files alone: this one has no name, and ends with the picture.
  QFile file;
  const int memory = memfd_create("picture", MFD_CLOEXEC);
  if (memory < 0 || !file.open(memory, QIODevice::WriteOnly, QFileDevice::AutoCloseHandle) ||
      file.write(bytes) != bytes.size() || !file.flush()) {
    return Failure{from, std::strerror(errno)};
  }
  return decoded(platform.images.load("/proc/self/fd/" + std::to_string(memory)), from);
}

Offer clipboardOffer() {
  const QMimeData* data = QGuiApplication::clipboard()->mimeData();
  return {data, data == nullptr ? QStringList() : data->formats()};
}

QList<QUrl> offeredFiles(const Offer& offer) {
  return offer.formats.contains(QLatin1String("text/uri-list")) ? offer.data->urls()
                                                                : QList<QUrl>();
}

bool hasPicture(const Offer& offer) {
  if (hasPixels(offer) || !pictureFormat(offer).isEmpty()) return true;
  const QList<QUrl> files = offeredFiles(offer);
  if (files.isEmpty() || !files.constFirst().isLocalFile()) return false;
  return QMimeDatabase()
      .mimeTypeForFile(files.constFirst().toLocalFile())
      .name()
      .startsWith(QLatin1String("image/"));
}

Result<Image> givenPicture(const Platform& platform, const Offer& offer) {
  if (const QString format = pictureFormat(offer); !format.isEmpty())
    return givenBytes(platform, offer.data->data(format), clipboardName);
  if (hasPixels(offer)) return imageOf(qvariant_cast<QImage>(offer.data->imageData()));
  const QList<QUrl> files = offeredFiles(offer);
  if (!files.isEmpty()) return givenFile(platform, files.constFirst());
  return Failure{clipboardName, "it holds no picture"};
}

Platform withGivenPictures(Platform platform, std::function<void(const Failure&)> refused) {
  const auto told = [refused = std::move(refused)](const auto& result) {
    if (!result) refused(result.failure());
  };
  platform.images.resized = [told, resized = platform.images.resized](const Image& image,
                                                                      const PixelSize& size) {
    Result<Image> made = resized(image, size);
    told(made);
    return made;
  };
  const auto reading = std::make_shared<const Platform>(platform);
  platform.pasteboard = {.hasImages = [] { return hasPicture(clipboardOffer()); },
                         .image = [told, reading]() -> std::optional<Image> {
                           const auto picture = givenPicture(*reading, clipboardOffer());
                           told(picture);
                           if (!picture) return std::nullopt;
                           return *picture;
                         }};
  return platform;
}

} // namespace vitrelle::ui
