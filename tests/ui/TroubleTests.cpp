#include "ui/Trouble.h"

#include "tests/core/app/AppTest.h"

namespace vitrelle {
namespace {

class TroubleTest : public test::AppTest {
 protected:
  Platform telling = ui::withTroubleTold(
      platform,
      [this](ui::Trouble trouble, const Failure& failure) {
        told.emplace_back(trouble, failure.what);
      },
      [this] { ++over; });
  int over = 0;
  std::vector<std::pair<ui::Trouble, std::string>> told;
};

TEST_F(TroubleTest, failedWrites_areToldOnceUntilOneSucceeds) {
  const PngFile file{"/group/0original.png", screenshot};
  const auto write = [&] { (void)telling.images.writePngFiles({&file, 1}); };
  write();
  EXPECT_TRUE(told.empty());
  folder.refused = {"0original.png"};
  write();
  write();
  EXPECT_EQ(told, (decltype(told){{ui::Trouble::writing, "/group/0original.png"}}));
  folder.refused = {};
  write();
  folder.refused = {"0original.png"};
  write();
  EXPECT_EQ(told.size(), 2U);
}

TEST_F(TroubleTest, suiteThatCannotBeRead_isToldOnceThoughTheOtherCan) {
  defaults.broken = {Suite::standard};
  for (int i = 0; i < 3; ++i) {
    (void)telling.defaults.value(Suite::standard, "a");
    (void)telling.defaults.keys(Suite::standard);
    (void)telling.defaults.value(Suite::group, "a");
    (void)telling.defaults.set(Suite::standard, "a", true);
    (void)telling.defaults.set(Suite::group, "a", true);
  }
  EXPECT_EQ(told, (decltype(told){{ui::Trouble::reading, "standard store"}}));
  defaults.broken = {};
  EXPECT_EQ(over, 0);
  (void)telling.defaults.value(Suite::standard, "a");
  EXPECT_EQ(over, 1);
  defaults.broken = {Suite::standard};
  (void)telling.defaults.value(Suite::standard, "a");
  EXPECT_EQ(told.size(), 2U);
}

} // namespace
} // namespace vitrelle
