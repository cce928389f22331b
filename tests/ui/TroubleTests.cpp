#include "ui/Trouble.h"

#include "tests/app/AppTest.h"

namespace vitrelle {
namespace {

using TroubleTest = test::AppTest;

TEST_F(TroubleTest, failedWrites_areToldOnceUntilOneSucceeds) {
  std::vector<Failure> told;
  const Platform telling =
      ui::withTroubleTold(platform, [&](const Failure& failure) { told.push_back(failure); });
  const auto write = [&] { (void)telling.defaults.set(Suite::group, "a", std::int64_t{1}); };
  write();
  EXPECT_TRUE(told.empty());
  defaults.broken = true;
  write();
  write();
  EXPECT_EQ(told.size(), 1U);
  folder.refused = {"0original.png"};
  const PngFile file{"/group/0original.png", screenshot};
  EXPECT_FALSE(telling.images.writePngFiles({&file, 1})[0]);
  EXPECT_EQ(told.size(), 1U);
  defaults.broken = false;
  write();
  EXPECT_FALSE(telling.images.writePngFiles({&file, 1})[0]);
  EXPECT_EQ(told.size(), 2U);
  EXPECT_EQ(told.back().what, "/group/0original.png");
}

} // namespace
} // namespace vitrelle
