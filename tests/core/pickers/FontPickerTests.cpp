#include "core/pickers/FontPicker.h"

#include "tests/core/app/AppTest.h"

namespace vitrelle {
namespace {

class FontPickerTest : public test::AppTest {
 protected:
  std::optional<std::string> name(const std::string& key) {
    const auto& values = defaults.values(Suite::group);
    const auto found = values.find(key);
    if (found == values.end()) return std::nullopt;
    return std::get<std::string>(found->second);
  }
  StoredFontPicker picker(const char* screen) {
    return {platform, storedFont(screen), [this] { ++dismissals; }};
  }

  const FontDescriptor inter{"Inter", "Inter-Regular"};
  int dismissals = 0;
};

TEST_F(FontPickerTest, storedPickers_writeTheNameUnderTheirKeys) {
  setNumber("dateFontSize", 30);
  EXPECT_EQ(picker("DateFontPicker").fontPicked(), "");
  picker("FontPicker").didPickFont(inter);
  picker("DateFontPicker").didPickFont(inter);
  picker("TimeFontPicker").didPickFont(inter);
  for (const char* key : {"fontPicked", "dateFontPicked", "timeFontPicked"})
    EXPECT_EQ(name(key), "Inter-Regular") << key;
  EXPECT_EQ(picker("DateFontPicker").fontPicked(), "Inter-Regular");
  EXPECT_EQ(console.reloads, 3);
  EXPECT_EQ(dismissals, 3);
  EXPECT_TRUE(printed("Inter-Regular 18.0"));
  EXPECT_TRUE(printed("Inter-Regular 30.0"));
  EXPECT_EQ(number("fontSize"), std::nullopt) << "only the name is kept";
}

TEST_F(FontPickerTest, unknownPicker_endsTheProgram) {
  EXPECT_DEATH(storedFont("SizePicker"), "no font picker SizePicker");
}

TEST_F(FontPickerTest, withoutAChoice_nothingHappens) {
  picker("FontPicker").didPickFont(std::nullopt);
  EXPECT_FALSE(name("fontPicked"));
  EXPECT_EQ(console.reloads, 0);
  EXPECT_EQ(dismissals, 0);
  bool picked = false;
  ModernFontPicker([&](const std::string&) { picked = true; }, [&] { ++dismissals; })
      .didPickFont(std::nullopt);
  EXPECT_FALSE(picked);
  EXPECT_EQ(dismissals, 0);
}

TEST_F(FontPickerTest, brokenStore_stillReloads) {
  defaults.broken = {Suite::group};
  picker("FontPicker").didPickFont(inter);
  EXPECT_EQ(console.reloads, 1);
  EXPECT_EQ(dismissals, 1);
}

TEST_F(FontPickerTest, modernPicker_writesItsOwnersValueAlone) {
  std::string picked;
  ModernFontPicker([&](const std::string& font) { picked = font; }, [&] { ++dismissals; })
      .didPickFont(inter);
  EXPECT_EQ(picked, "Inter-Regular");
  EXPECT_EQ(dismissals, 1);
  EXPECT_EQ(console.reloads, 0);
  EXPECT_TRUE(defaults.values(Suite::group).empty());
}

TEST_F(FontPickerTest, search_findsWordsInAnyCase) {
  const Fonts fonts{.families = [] {
    return std::vector<FontFamily>{{"Inter", "A"}, {"Inter Display", "B"}, {"Noto Sans", "C"}};
  }};
  EXPECT_EQ(fontFamilies(fonts, "").size(), 3U);
  EXPECT_EQ(fontFamilies(fonts, "iNTER").size(), 2U);
  EXPECT_EQ(fontFamilies(fonts, "sans"), (std::vector<FontFamily>{{"Noto Sans", "C"}}));
  EXPECT_TRUE(fontFamilies(fonts, "serif").empty());
}

} // namespace
} // namespace vitrelle
