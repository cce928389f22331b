// The pictures that screens show: stored screenshots and slices, decoded beside the frame's way and
// only as large as they are drawn.
#pragma once

#include "core/platform/Platform.h"

#include <QImage>
#include <QSize>
#include <QThreadPool>

#include <functional>
#include <optional>
#include <string>

namespace vitrelle::ui {

/// Which stored picture.
struct PictureName {
  std::string stem; ///< "original", or a slot's
  std::int64_t style = 0;
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
  /// The same for one of the program's own, whose middle fills the size.
  void loadAsset(const QString& name, const QSize& pixels, std::function<void(LoadedPicture)> done);

 private:
  const Platform& platform_;
  QThreadPool pool_;
};

/// The pixels of an image stretched to a size. Null when it can't be decoded.
QImage stretched(const Image& image, const QSize& pixels);

} // namespace vitrelle::ui
