#include "host/drawing/Blur.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numeric>

namespace vitrelle::host {
namespace {

TEST(Blur, point_becomesAHillOfThatDeviation) {
  for (const double deviation : {1.0, 2.5, 5.0, 15.0}) {
    // A square of 255s, for a single one would be rounded away.
    const int side = 2 * static_cast<int>(deviation) + 1;
    const int reach = blurReach(deviation);
    Mask mask(side + 2 * reach, side + 2 * reach);
    for (int y = 0; y < side; ++y)
      std::fill_n(mask.row(reach + y) + reach, side, 255);
    blur(mask, deviation);
    const int middle = mask.width / 2;
    double sum = 0;
    double moment = 0;
    for (int x = 0; x < mask.width; ++x) {
      double column = 0;
      for (int y = 0; y < mask.height; ++y)
        column += mask.row(y)[x];
      EXPECT_EQ(mask.row(middle)[x], mask.row(middle)[mask.width - 1 - x]) << "symmetric";
      EXPECT_NEAR(mask.row(middle)[x], mask.row(x)[middle], 1) << "the same both ways";
      sum += column;
      moment += column * (x - middle) * (x - middle);
    }
    const double ofSquare = (side * side - 1) / 12.0;
    EXPECT_NEAR(std::sqrt(moment / sum - ofSquare), deviation, std::max(0.2, 0.1 * deviation));
    EXPECT_NEAR(sum / (255.0 * side * side), 1, 0.05) << "as much ink as before";
  }
}

TEST(Blur, wholeMask_staysFullInTheMiddleAndZeroIsNoBlur) {
  Mask mask(300, 300);
  std::fill(mask.samples.begin(), mask.samples.end(), 255);
  blur(mask, 40);
  EXPECT_EQ(mask.row(150)[150], 255);
  EXPECT_LT(mask.row(0)[0], 100) << "outside there is nothing";
  Mask sharp(3, 1);
  sharp.samples = {0, 255, 0};
  blur(sharp, 0);
  EXPECT_EQ(sharp.samples, (std::vector<std::uint8_t>{0, 255, 0}));
}

} // namespace
} // namespace vitrelle::host
