#include "ui/parts/PictureSource.h"

#include "core/slicing/ImageLoader.h"
#include "host/painting/PainterValues.h"

#include <QColorSpace>
#include <QImageReader>

#include <algorithm>
#include <cstdint>
#include <optional>
#include <utility>

namespace vitrelle::ui {

namespace {

std::optional<Image> find(const Platform& platform, const PictureName& name) {
  return ImageLoader(platform).loadSlice(name.stem, name.dark ? darkStyle : lightStyle, name.style);
}

QColorSpace colourSpace(const ColourProfile& profile) {
  if (profile.icc.empty()) return {};
  const QByteArray icc(reinterpret_cast<const char*>(profile.icc.data()),
                       static_cast<qsizetype>(profile.icc.size()));
  return QColorSpace::fromIccProfile(icc);
}

} // namespace

QImage filling(const Image& image, const QSize& pixels) {
  const std::int64_t width = image.size().width;
  const std::int64_t height = image.size().height;
  if (pixels.isEmpty()) return {};
  const std::int64_t middleWidth =
      std::clamp<std::int64_t>(height * pixels.width() / pixels.height(), 1, width);
  const std::int64_t middleHeight =
      std::clamp<std::int64_t>(width * pixels.height() / pixels.width(), 1, height);
  const auto middle = image.cropped({.x = (width - middleWidth) / 2,
                                     .y = (height - middleHeight) / 2,
                                     .width = middleWidth,
                                     .height = middleHeight});
  return middle ? stretched(*middle, pixels) : QImage();
}

QImage stretched(const Image& image, const QSize& pixels) {
  const Result<Bitmap> bitmap = image.bitmap();
  if (!bitmap || pixels.isEmpty() || bitmap->size.width == 0) return {};
  QImage scaled =
      host::qImage(*bitmap).scaled(pixels, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
  const QColorSpace space = colourSpace(image.profile());
  if (space.isValid()) {
    scaled.setColorSpace(space);
    scaled.convertToColorSpace(QColorSpace::SRgb);
  }
  return std::move(scaled).convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

void PictureSource::load(const PictureName& name, const QSize& pixels,
                         const std::optional<FileIdentity>& shown,
                         std::function<void(LoadedPicture)> done) {
  pool_.start([this, name, pixels, shown, done = std::move(done)] {
    const auto image = find(platform_, name);
    if (!image) return done({});
    if (shown && image->file() == shown) return;
    done({stretched(*image, pixels), image->file()});
  });
}

void PictureSource::loadFile(const std::string& path, int revision, const QSize& pixels,
                             std::weak_ptr<const void> asker,
                             std::function<void(LoadedPicture)> done) {
  pool_.start([this, path, revision, pixels, asker = std::move(asker), done = std::move(done)] {
    if (asker.expired()) return;
    const QString key =
        QStringLiteral("%1 %2 %3 ").arg(revision).arg(pixels.width()).arg(pixels.height()) +
        QString::fromStdString(path);
    if (const QImage* known = files_.object(key)) return done({*known, {}});
    const Result<Image> image = platform_.images.load(path);
    const QImage picture = image ? filling(*image, pixels) : QImage();
    if (!picture.isNull())
      files_.insert(key, new QImage(picture), static_cast<int>(picture.sizeInBytes() >> 10));
    done({picture, {}});
  });
}

void PictureSource::loadAsset(const QString& name, const QSize& pixels,
                              std::function<void(LoadedPicture)> done) {
  pool_.start([name, pixels, done = std::move(done)] {
    QImageReader reader(QStringLiteral(":/pictures/") + name + QStringLiteral(".svg"));
    const QSize whole = reader.size().scaled(pixels, Qt::KeepAspectRatioByExpanding);
    reader.setScaledSize(whole);
    const QPoint corner((whole.width() - pixels.width()) / 2,
                        (whole.height() - pixels.height()) / 2);
    done({.pixels = reader.read()
                        .copy(QRect(corner, pixels))
                        .convertToFormat(QImage::Format_ARGB32_Premultiplied),
          .file = {}});
  });
}

} // namespace vitrelle::ui
