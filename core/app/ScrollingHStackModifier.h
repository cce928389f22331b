// The arithmetic of a pager that snaps to its pages. All lengths are points.
#pragma once

#include <cstdint>

namespace vitrelle {

/// The content is a row of pages whose middle lies `offset` to the right of the screen's middle.
class ScrollingHStackModifier final {
 public:
  /// Starts on the first page.
  ScrollingHStackModifier(std::int64_t items, double itemWidth, double itemSpacing,
                          double screenWidth);

  /// So far a finger has to move before it drags.
  static constexpr double minimumDragDistance = 10;

  void drag(double translation) { dragOffset_ = translation; }
  void endDrag(double translation);
  /// By keys, a wheel or a click; clamped to the pages there are.
  void showPage(std::int64_t page);

  double offset() const { return scrollOffset_ + dragOffset_; }
  double scrollOffset() const { return scrollOffset_; }
  /// Counted from the last page, once the pager was moved; 0 before.
  double index() const { return index_; }
  std::int64_t items() const { return items_; }
  /// The page in the middle, from 0 at the left.
  std::int64_t page() const;

 private:
  double contentWidth() const;
  double clampedIndex(double index) const;
  void snap();

  std::int64_t items_;
  double itemWidth_;
  double itemSpacing_;
  double screenWidth_;
  double scrollOffset_;
  double dragOffset_ = 0;
  double index_ = 0;
};

} // namespace vitrelle
