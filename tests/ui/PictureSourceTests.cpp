#include "ui/parts/PictureSource.h"

#include "tests/support/Fakes.h"

#include <gtest/gtest.h>

#include <cstring>
#include <memory>
#include <vector>

namespace vitrelle {
namespace {

TEST(PictureSource, rowsOfAnyLength_areStretchedAlike) {
  const Bitmap packed = test::positionImage(60, 40).bitmap().value();
  for (const std::size_t gap : {0U, 1U, 2U, 4U, 7U}) {
    const std::size_t row = 60 * 4 + gap;
    const auto bytes = std::make_shared<std::vector<std::uint8_t>>(row * 40 + gap, 99);
    for (std::int32_t y = 0; y < 40; ++y)
      std::memcpy(bytes->data() + gap + static_cast<std::size_t>(y) * row, packed.row(y), 60 * 4);
    const Image loose(Bitmap{.size = {60, 40},
                             .bytesPerRow = row,
                             .pixels = bytes->data() + gap,
                             .opaque = true,
                             .owner = bytes});
    for (const QSize size : {QSize(60, 40), QSize(30, 20), QSize(70, 90)})
      EXPECT_EQ(ui::stretched(loose, size), ui::stretched(Image(packed), size)) << gap;
  }
}

} // namespace
} // namespace vitrelle
