// Something that leaves the program through the share sheet: a file's bytes with their name and
// kind, and what to show of it.
#pragma once

#include "core/platform/Image.h"

#include <QByteArray>
#include <QObject>
#include <QString>
#include <QtQmlIntegration>

#include <optional>

namespace vitrelle::ui {

struct SharedItem {
  Q_GADGET
  QML_VALUE_TYPE(sharedItem)
  Q_PROPERTY(QString fileName MEMBER fileName CONSTANT)
  Q_PROPERTY(int byteCount READ byteCount CONSTANT)
  /// Of the picture that is shown; 0 where none is.
  Q_PROPERTY(int pixelWidth READ pixelWidth CONSTANT)
  Q_PROPERTY(int pixelHeight READ pixelHeight CONSTANT)
  /// Whether there is something to share.
  Q_PROPERTY(bool present READ isPresent CONSTANT)

 public:
  QString fileName;
  QString mediaType;
  QByteArray bytes;
  std::optional<Image> preview;

  int byteCount() const { return static_cast<int>(bytes.size()); }
  int pixelWidth() const { return preview ? preview->size().width : 0; }
  int pixelHeight() const { return preview ? preview->size().height : 0; }
  bool isPresent() const { return !bytes.isEmpty(); }
  bool operator==(const SharedItem&) const = default;
};

} // namespace vitrelle::ui
