// The pictures that screens show: stored screenshots and slices, decoded beside the frame's way and
// only as large as they are drawn.
#pragma once

#include "core/platform/Platform.h"
#include "core/store/Numbers.h"

#include <QCache>
#include <QImage>
#include <QSize>
#include <QThreadPool>

#include <functional>
#include <memory>
#include <optional>
#include <string>

namespace vitrelle::ui {

/// Which stored picture.
struct PictureName {
  std::string stem; ///< "original", or a slot's
  StyleNumber style = {};
  bool dark = false;
  bool operator==(const PictureName&) const = default;
};

struct LoadedPicture {
  QImage pixels;                    ///< null when it can't be had
  std::optional<FileIdentity> file; ///< that it is of
};

class PictureSource final {
 public:
  /// One picture after the other, in the order asked for: what is seen first comes first, the
  /// decoder has threads of its own, and no more than one whole picture is in memory.
  explicit PictureSource(const Platform& platform) : platform_(platform) {
    pool_.setMaxThreadCount(1);
  }
  /// Waits for what is being decoded.
  ~PictureSource() { pool_.waitForDone(); }
  PictureSource(const PictureSource&) = delete;
  PictureSource& operator=(const PictureSource&) = delete;

  /// Whether nothing is being decoded.
  bool isIdle() const { return pool_.activeThreadCount() == 0; }

  /// Calls back on another thread with the picture stretched to the size, in sRGB. It does not when
  /// that would be of the file that is `shown` already.
  void load(const PictureName& name, const QSize& pixels, const std::optional<FileIdentity>& shown,
            std::function<void(LoadedPicture)> done);
  /// The same for a picture file anywhere, whose middle fills the size. Another `revision` is
  /// another content. Nothing is done once the asker is gone, for who scrolls leaves many behind;
  /// finished ones are kept for a while, for who scrolls comes back.
  void loadFile(const std::string& path, int revision, const QSize& pixels,
                std::weak_ptr<const void> asker, std::function<void(LoadedPicture)> done);
  /// The same for one of the program's own, whose middle fills the size.
  void loadAsset(const QString& name, const QSize& pixels, std::function<void(LoadedPicture)> done);

 private:
  const Platform& platform_;
  QThreadPool pool_;
  QCache<QString, QImage> files_{64 << 10}; ///< of the pool's one thread; costs are kilobytes
};

/// The largest middle of an image that has the proportions of a size, in that size. Null when it
/// can't be decoded.
QImage filling(const Image& image, const QSize& pixels);
/// The pixels of an image stretched to a size. Null when it can't be decoded.
QImage stretched(const Image& image, const QSize& pixels);

} // namespace vitrelle::ui
