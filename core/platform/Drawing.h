// Turning display lists into pixels, and measuring text for them.
#pragma once

#include "core/platform/DisplayList.h"
#include "core/platform/Result.h"

#include <functional>
#include <span>
#include <string>

namespace vitrelle {

struct Drawing {
  /// The room that a text takes of the room there is, in points, each side rounded up to a quarter.
  /// Either side of `room` may be infinite; one line is always taken.
  std::function<PointSize(const std::string& text, const Font& font, const PointSize& room)>
      textSize;
  /// How far below its top the last line of such a text has the feet of its letters, in points.
  std::function<double(const std::string& text, const Font& font, const PointSize& room)>
      lastBaseline;

  /// The area of the layers, each drawn by itself and laid over those before it. `scale` is in
  /// pixels per point; a broken pixel at the right and bottom edges counts whole. Fails when the
  /// picture would be larger than a screen can be.
  std::function<Result<Image>(std::span<const DisplayList> layers, const PointRect& area,
                              double scale)>
      render;
};

} // namespace vitrelle
