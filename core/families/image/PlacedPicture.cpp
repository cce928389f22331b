#include "core/families/image/PlacedPicture.h"

#include <algorithm>
#include <array>
#include <optional>
#include <string_view>
#include <utility>
#include <vector>

namespace vitrelle {

namespace {

constexpr Shadow softShadow{.colour = {0, 0, 0, 0.33}, .radius = 5};

/// Where a position puts the picture: the sides on which room is left.
struct Placement {
  std::string_view position;
  double Insets::*room = nullptr; ///< none in the middle
  double Insets::*smallRoom = nullptr;
  bool isInColumn = false;
};

constexpr std::array<Placement, 5> placements{{
    {.position = "centre"},
    {.position = "left", .room = &Insets::leading, .smallRoom = &Insets::trailing},
    {.position = "right", .room = &Insets::trailing, .smallRoom = &Insets::leading},
    {.position = "top", .room = &Insets::bottom, .smallRoom = &Insets::bottom, .isInColumn = true},
    {.position = "bottom", .room = &Insets::top, .smallRoom = &Insets::top, .isInColumn = true},
}};

} // namespace

View PlacedPicture::view(double screenWidth) const {
  const auto* const found = std::ranges::find(placements, position, &Placement::position);
  if (found == placements.end()) return spacer();
  const double side = size == 1 ? screenWidth / 3 : screenWidth * 0.25;
  const View square = framed(picture(image), side, side);
  const View shown = showShadow ? shadowed(square, softShadow) : square;
  if (found->room == nullptr) return shown;

  Insets insets;
  insets.*(isSmallWidget ? found->smallRoom : found->room) = screenWidth / 7;
  const View placed = padded(shown, insets);
  if (found->isInColumn) return framed(placed, std::nullopt, screenWidth / 3);
  if (isSmallWidget) return placed;
  std::vector<View> row{placed, spacer()}; // the room beside it counts from the widget's edge
  if (found->room == &Insets::trailing) std::swap(row.front(), row.back());
  return hstack(std::move(row), Place::centre, 0);
}

} // namespace vitrelle
