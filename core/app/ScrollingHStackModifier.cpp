#include "core/app/ScrollingHStackModifier.h"

#include <algorithm>
#include <cmath>

namespace vitrelle {

ScrollingHStackModifier::ScrollingHStackModifier(std::int64_t items, double itemWidth,
                                                 double itemSpacing, double screenWidth)
    : items_(items),
      itemWidth_(itemWidth),
      itemSpacing_(itemSpacing),
      screenWidth_(screenWidth),
      scrollOffset_(contentWidth() / 2 - screenWidth / 2 + (screenWidth - itemWidth) / 2) {}

void ScrollingHStackModifier::endDrag(double translation) {
  scrollOffset_ += translation;
  dragOffset_ = 0;
  double index = (contentWidth() / 2 + scrollOffset_) / (itemWidth_ + itemSpacing_);
  // The remainder never exceeds 0.5, so a page is cut off, not rounded: half a page to the left
  // goes on, half a page to the right does not. Drags are meant to feel like that.
  index = std::remainder(index, 1.0) > 0.5 ? index + 1 : std::trunc(index);
  index_ = clampedIndex(index);
  snap();
}

void ScrollingHStackModifier::showPage(std::int64_t page) {
  dragOffset_ = 0;
  index_ = clampedIndex(static_cast<double>(items_ - 1 - page));
  snap();
}

std::int64_t ScrollingHStackModifier::page() const {
  const double first = (contentWidth() - itemWidth_) / 2;
  const double page = std::round((first - scrollOffset_) / (itemWidth_ + itemSpacing_));
  return std::clamp<std::int64_t>(static_cast<std::int64_t>(page), 0, std::max(items_ - 1, {}));
}

double ScrollingHStackModifier::contentWidth() const {
  const auto count = static_cast<double>(items_);
  return count * itemWidth_ + (count - 1) * itemSpacing_;
}

double ScrollingHStackModifier::clampedIndex(double index) const {
  return std::max(std::min(index, static_cast<double>(items_ - 1)), 0.0);
}

void ScrollingHStackModifier::snap() {
  scrollOffset_ = itemSpacing_ + screenWidth_ / 2 +
                  (itemWidth_ * index_ + itemSpacing_ * (index_ - 1) - contentWidth() / 2) -
                  (screenWidth_ - itemWidth_) / 2;
}

} // namespace vitrelle
