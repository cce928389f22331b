// Pictures that other programs give, by the clipboard or by dropping them: as files, as the bytes
// of one, or as pixels. Each is decoded when it is taken in, as far as memory is to be had.
#pragma once

#include "core/platform/Platform.h"

#include <QByteArray>
#include <QList>
#include <QMimeData>
#include <QStringList>
#include <QUrl>

#include <functional>

namespace vitrelle::ui {

/// Of a format that the platform reads, else one that Qt does; the first of several pictures.
Result<Image> givenFile(const Platform& platform, const QUrl& file);
/// `from` is where the bytes come from, in words.
Result<Image> givenBytes(const Platform& platform, const QByteArray& bytes, const char* from);

/// What lies in the clipboard, as its owner says. One that does not answer is waited for, which may
/// take seconds: once, for it is asked for the formats alone.
struct Offer {
  const QMimeData* data = nullptr;
  QStringList formats = {}; ///< none where there is nothing, or no answer
};
Offer clipboardOffer();

QList<QUrl> offeredFiles(const Offer& offer);
/// Whether it says that a picture, or a file of one, is in it.
bool hasPicture(const Offer& offer);
/// The one with the most in it: a PNG picture, any other, a local file.
Result<Image> givenPicture(const Platform& platform, const Offer& offer);

/// The platform with the desktop's clipboard. `refused` is told why a picture in there, or one that
/// is to be made another size, can't be had: the logic says nothing of it.
Platform withGivenPictures(Platform platform, std::function<void(const Failure&)> refused);

} // namespace vitrelle::ui
