#include "core/lifecycle/PastedPicture.h"

#include "core/drawing/View.h"

#include <array>

namespace vitrelle {

namespace {

/// As large as it will be kept; points, of a pixel each.
constexpr PointSize signSize{800, 800};
constexpr PlatformColour white{1, 1, 1, 1};

} // namespace

std::optional<Image> pastedPicture(const Platform& platform) {
  if (!platform.pasteboard.hasImages()) return std::nullopt;
  if (auto picture = platform.pasteboard.image()) return picture;
  const std::array sign{
      layOut(symbol("questionmark", signSize.height, white), signSize, platform.drawing)};
  const auto drawn = platform.drawing.render(sign, {0, 0, signSize.width, signSize.height}, 1);
  if (!drawn) return std::nullopt;
  return *drawn;
}

} // namespace vitrelle
