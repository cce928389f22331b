#include "core/pickers/SFSymbolsPicker.h"

#include "tests/core/app/AppTest.h"

#include <set>

namespace vitrelle {
namespace {

TEST(SymbolCatalogue, lists_haveTheirSizesAndEnds) {
  const struct {
    std::string_view label;
    std::size_t size;
    std::string_view first;
    std::string_view last;
  } expected[] = {
      {"Communication", 135, "mic", "recordingtape"},
      {"Weather", 74, "sun.min", "humidity.fill"},
      {"Objects", 574, "pencil", "checkmark.shield.fill"},
      {"Devices", 241, "keyboard", "hearingdevice.ear"},
      {"Games", 117, "circle.grid.cross", "y.circle.fill"},
      {"Connectivity", 71, "externaldrive.connected.to.line.below", "bonjour"},
      {"Transport", 49, "airplane", "figure.wave.circle.fill"},
      {"People", 170, "folder.badge.person.crop", "hands.sparkles.fill"},
      {"Nature", 46, "globe.americas", "leaf.arrow.triangle.circlepath"},
      {"Edit", 80, "pencil", "arrow.up.and.down.righttriangle.up.righttriangle.down.fill"},
      {"Text", 47, "signature", "a.magnify"},
      {"Multimedia", 79, "play", "text.append"},
      {"KeyBoard", 61, "command", "arrow.forward.to.line"},
      {"Commerce", 159, "signature", "brazilianrealsign.square.fill"},
      {"Time", 24, "clock", "hourglass.tophalf.filled"},
      {"Health", 49, "heart.text.square", "staroflife.circle.fill"},
      {"Forms", 38, "seal", "rectangle.roundedbottom.fill"},
      {"Arrows", 326, "arrowshape.turn.up.left", "arrowtriangle.down.square.fill"},
      {"Indices", 500, "questionmark.circle", "50.square.fill"},
      {"Math", 53, "sum", "x.squareroot"},
  };
  const SymbolCatalogue& catalogue = symbolCatalogue();
  ASSERT_EQ(catalogue.size(), std::size(expected));
  std::set<std::string_view> distinct;
  for (std::size_t i = 0; i < std::size(expected); ++i) {
    const auto& [name, size, first, last] = expected[i];
    EXPECT_EQ(label(allCategories()[i]), name);
    const auto& names = catalogue.at(name);
    EXPECT_EQ(names.size(), size) << name;
    EXPECT_EQ(names.front(), first);
    EXPECT_EQ(names.back(), last);
    const std::set<std::string_view> own(names.begin(), names.end());
    EXPECT_EQ(own.size(), size) << name << " repeats a name";
    distinct.insert(own.begin(), own.end());
  }
  EXPECT_EQ(distinct.size(), 2568U);
  EXPECT_EQ(allCategories().back(), Category::none);
  EXPECT_EQ(label(Category::none), "");
}

class SFSymbolsPickerTest : public test::AppTest {
 protected:
  SFSymbolsPicker picker(Category category, bool haptic) {
    return {platform,
            category,
            Axis::vertical,
            haptic,
            [this](std::string_view name) { picked.emplace_back(name); },
            [this] { ++closings; }};
  }
  std::vector<std::string> picked;
  int closings = 0;
};

TEST_F(SFSymbolsPickerTest, tap_isToldAndKeepsTheSheetOpen) {
  const SFSymbolsPicker shown = picker(Category::objects, true);
  EXPECT_EQ(shown.names().size(), 574U);
  shown.select("pencil.circle");
  shown.select("pencil.circle");
  EXPECT_EQ(picked, (std::vector<std::string>{"pencil.circle", "pencil.circle"}));
  EXPECT_EQ(surroundings.felt, (std::vector<std::string>{"medium impact", "medium impact"}));
  EXPECT_EQ(closings, 0);
  shown.close();
  EXPECT_EQ(closings, 1);
}

TEST_F(SFSymbolsPickerTest, withoutHaptic_aTapIsSilent) {
  picker(Category::edit, false).select("pencil");
  EXPECT_EQ(picked, (std::vector<std::string>{"pencil"}));
  EXPECT_TRUE(surroundings.felt.empty());
}

TEST_F(SFSymbolsPickerTest, categoryWithoutAList_endsTheProgram) {
  EXPECT_DEATH(picker(Category::none, false).names(), "has no list");
}

} // namespace
} // namespace vitrelle
