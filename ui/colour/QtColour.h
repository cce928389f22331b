// Colours of the logic as Qt's, and the other way.
#pragma once

#include "core/platform/PlatformColour.h"

#include <QColor>

namespace vitrelle::ui {

inline QColor qColour(const PlatformColour& colour) {
  return QColor::fromRgbF(static_cast<float>(colour.red), static_cast<float>(colour.green),
                          static_cast<float>(colour.blue), static_cast<float>(colour.alpha));
}

/// From the 16 bits of each component: floating-point numbers of Qt's would not be the shortest.
inline PlatformColour platformColour(const QColor& colour) {
  const QRgba64 parts = colour.rgba64();
  constexpr double full = 0xFFFF;
  return {parts.red() / full, parts.green() / full, parts.blue() / full, parts.alpha() / full};
}

} // namespace vitrelle::ui
