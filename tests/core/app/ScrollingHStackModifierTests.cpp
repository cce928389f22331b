#include "core/app/ScrollingHStackModifier.h"

#include <gtest/gtest.h>

namespace vitrelle {
namespace {

constexpr double screen = 393;
constexpr double width = screen / 1.5;
constexpr double spacing = 21;
constexpr double step = width + spacing;

ScrollingHStackModifier pager(std::int64_t items) {
  return {items, width, spacing, screen};
}

/// How far right the middle of a page is drawn from the screen's middle.
double middleOf(std::int64_t page, const ScrollingHStackModifier& pager) {
  const auto items = static_cast<double>(pager.items());
  return (static_cast<double>(page) - (items - 1) / 2) * step + pager.offset();
}

TEST(ScrollingHStackModifier, start_hasTheFirstPageInTheMiddle) {
  for (const std::int64_t items : {1, 2, 3, 12}) {
    EXPECT_NEAR(middleOf(0, pager(items)), 0, 1e-9) << items;
    EXPECT_EQ(pager(items).page(), 0) << items;
  }
}

TEST(ScrollingHStackModifier, drags_followTheFingerAndSnap) {
  struct Case {
    double translation;
    std::int64_t page;
  };
  // From page 1 of 4. Half a page to the left goes on; to the right it takes a little more.
  const Case cases[] = {{0, 1},           {-0.46 * step, 1}, {-0.47 * step, 2}, {0.53 * step, 1},
                        {0.54 * step, 0}, {-step, 2},        {-1e6, 3},         {1e6, 0}};
  for (const Case& c : cases) {
    auto four = pager(4);
    four.showPage(1);
    EXPECT_NEAR(middleOf(1, four), 0, 1e-9);
    four.drag(c.translation);
    EXPECT_NEAR(middleOf(1, four), c.translation, 1e-9);
    four.endDrag(c.translation);
    EXPECT_EQ(four.page(), c.page) << c.translation;
    EXPECT_NEAR(middleOf(c.page, four), 0, 1e-9) << c.translation;
    EXPECT_EQ(four.index(), static_cast<double>(3 - c.page)) << c.translation;
  }
}

TEST(ScrollingHStackModifier, pages_areClamped) {
  auto three = pager(3);
  for (const auto& [asked, shown] : {std::pair{-4, 0}, {0, 0}, {2, 2}, {9, 2}}) {
    three.showPage(asked);
    EXPECT_EQ(three.page(), shown) << asked;
  }
}

} // namespace
} // namespace vitrelle
