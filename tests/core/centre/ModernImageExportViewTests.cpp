#include "core/centre/ModernImageExportView.h"

#include "tests/core/app/AppTest.h"

namespace vitrelle {
namespace {

class ModernImageExportViewTest : public test::AppTest {
 protected:
  void addStyles(std::int64_t amount) {
    setNumber("amountOfConfigs", amount);
    for (std::int64_t style = 0; style < amount; ++style)
      addSlices(style);
  }
};

using Stems = std::vector<std::vector<std::string>>;

Stems stems(const ModernImageExportView& screen) {
  Stems stems;
  for (const auto& row : screen.rows()) {
    stems.emplace_back();
    for (const SliceName& slice : row)
      stems.back().push_back(slice.stem);
  }
  return stems;
}

TEST_F(ModernImageExportViewTest, size_changesTheSlotsAndNothingElse) {
  addStyles(3);
  ModernImageExportView screen(platform);
  EXPECT_EQ(screen.configAmounts(), 3);
  EXPECT_EQ(screen.rows().front().front(), (SliceName{"topLeftSmall", {0}, lightStyle}));
  screen.select(2);
  screen.setLightDark(1);
  const Stems expected[] = {{{"topLeftSmall", "topRightSmall"},
                             {"midLeftSmall", "midRightSmall"},
                             {"bottomLeftSmall", "bottomRightSmall"}},
                            {{"topMedium"}, {"midMedium"}, {"bottomMedium"}},
                            {{"topLarge"}, {"bottomLarge"}}};
  const PointSize sizes[] = {{157.2, 157.2}, {333, 157.2}, {333, 333}};
  for (const int size : {0, 1, 2, 7, -1}) {
    screen.setWidgetSize(size);
    const std::size_t index = static_cast<std::size_t>(std::clamp(size, 0, 2));
    EXPECT_EQ(stems(screen), expected[index]) << size;
    EXPECT_EQ(screen.previewSize(), sizes[index]) << size;
    EXPECT_EQ(screen.rows().front().front().style, StyleNumber{2});
    EXPECT_EQ(screen.rows().front().front().appearance, darkStyle);
  }
  EXPECT_DOUBLE_EQ(screen.rowSpacing(), 393.0 / 18);
}

TEST_F(ModernImageExportViewTest, tap_sharesTheSliceUntilTheSheetIsClosed) {
  addStyles(3);
  const Image other = test::positionImage(474, 474);
  folder.images.insert_or_assign("2topLeftSmallDark.png", other);
  ModernImageExportView screen(platform);
  EXPECT_EQ(screen.activeSheet(), std::nullopt);
  int changes = 0;
  const Subscription view = screen.onChange([&] { ++changes; });
  screen.select(2);
  screen.setLightDark(-5);
  screen.tap("topLeftSmall");
  const ActivityView shared{{{.image = other, .fileName = "2topLeftSmallDark.png"}}};
  EXPECT_EQ(screen.activeSheet(), IEActiveSheet{shared});
  screen.dismissSheet();
  EXPECT_EQ(screen.activeSheet(), std::nullopt);
  EXPECT_EQ(changes, 4);
  EXPECT_TRUE(folder.written.empty());
}

TEST_F(ModernImageExportViewTest, stylesThatAreNotThere_haveNoSlots) {
  ModernImageExportView screen(platform);
  EXPECT_EQ(screen.configAmounts(), 0);
  EXPECT_TRUE(screen.rows().empty());
  addSlices(0);
  ASSERT_TRUE(platform.defaults.set(Suite::group, "amountOfConfigs", std::int64_t{1}));
  EXPECT_EQ(screen.rows().size(), 3U) << "another process made one";
  for (const std::int64_t other : {1, -1}) {
    screen.select(other);
    EXPECT_TRUE(screen.rows().empty()) << other;
  }
}

TEST_F(ModernImageExportViewTest, missingSlice_isFatal) {
  addStyles(1);
  folder.images.erase("0midMediumDark.png");
  ModernImageExportView screen(platform);
  screen.setWidgetSize(1);
  EXPECT_EQ(screen.rows().size(), 3U);
  screen.setLightDark(1);
  EXPECT_DEATH(screen.rows(), "Fatal error: style 0 has no slice 0midMediumDark.png");
  EXPECT_DEATH(screen.tap("midMedium"), "0midMediumDark.png");
  setNumber("amountOfConfigs", 2); // as a phone without measurements leaves one
  addStyle(1);
  EXPECT_DEATH(
      {
        ModernImageExportView unmeasured(platform);
        unmeasured.select(1);
        static_cast<void>(unmeasured.rows());
      },
      "no slice 1topLeftSmall.png");
}

} // namespace
} // namespace vitrelle
