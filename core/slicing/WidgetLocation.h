// The vocabulary of widget slots: their names, their file names and their places on the screen.
#pragma once

#include "core/platform/Image.h"
#include "core/slicing/WidgetMeasurements.h"
#include "core/store/Numbers.h"

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace vitrelle {

enum class WidgetLocationImageNames {
  fullImage, ///< the whole screenshot
  smallTopLeft,
  smallTopRight,
  smallMiddleLeft,
  smallMiddleRight,
  smallBottomLeft,
  smallBottomRight,
  mediumTop,
  mediumMiddle,
  mediumBottom,
  largeTop,    ///< rows one and two
  largeBottom, ///< rows two and three: it shares row two with `largeTop`
  error,       ///< no slot; no such file is ever written
};

/// All thirteen, in the order above.
std::span<const WidgetLocationImageNames> allWidgetLocations();

/// The stem of the file name, "topLeftSmall" for `smallTopLeft`.
std::string_view rawValue(WidgetLocationImageNames location);
std::optional<WidgetLocationImageNames> widgetLocation(std::string_view rawValue);

/// The platform's interface style. Any integer may come in; only `dark` changes a file name.
using InterfaceStyle = std::int64_t;
inline constexpr InterfaceStyle lightStyle = 1;
inline constexpr InterfaceStyle darkStyle = 2;

/// Style number, stem, "Dark" for the dark style, and ".png": "3bottomRightSmallDark.png".
std::string sliceFileName(StyleNumber number, std::string_view stem, InterfaceStyle style);

enum class WidgetFamily { small, medium, large };

/// The slots of a family in the order in which they are cut.
std::span<const WidgetLocationImageNames> slots(WidgetFamily family);

/// A slot's place in a screenshot, in pixels. An overflow, or a location that is not one of the
/// eleven slots, is a fatal error.
PixelRect slotRectangle(WidgetLocationImageNames slot, const WidgetMeasurements& measurements);

} // namespace vitrelle
