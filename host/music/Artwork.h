// From an album's picture as players name or carry it to one of the size that widgets show. Made
// for threads beside the main one.
#pragma once

#include "core/platform/Image.h"

#include <QByteArray>
#include <QString>

#include <chrono>
#include <cstdint>
#include <optional>

namespace vitrelle::host {

struct ArtworkLimits {
  std::int64_t bytes = std::int64_t{10} << 20; ///< of a file
  std::int32_t pixelsOfASide = 4096;           ///< of the picture in it
  std::int32_t side = 600;                     ///< in pixels, to which larger ones are made smaller
  std::chrono::milliseconds patience{10'000};  ///< until it is there
};

/// A PNG or JPEG picture within the limits.
std::optional<Image> decodeArtwork(const QByteArray& bytes, const ArtworkLimits& limits);

/// The bytes that an address beginning with "data:" carries itself.
QByteArray bytesInAddress(const QString& address);

struct ArtworkFile {
  FileIdentity identity;
  QByteArray bytes; ///< none of a file that is known already
};

/// A regular file within the limits.
std::optional<ArtworkFile> readArtwork(const QString& path, const ArtworkLimits& limits,
                                       const std::optional<FileIdentity>& known);

} // namespace vitrelle::host
