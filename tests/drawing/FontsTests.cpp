#include "host/drawing/Fonts.h"

#include <gtest/gtest.h>

#include <QFontInfo>
#include <QRawFont>

#include <algorithm>

namespace vitrelle::host {
namespace {

TEST(Fonts, families_comeOnceByNameWithTheirRegularFace) {
  const auto families = makeFonts().families();
  EXPECT_TRUE(std::ranges::is_sorted(families, {}, &FontFamily::name));
  EXPECT_EQ(std::ranges::adjacent_find(families, {}, &FontFamily::name), families.end());
  const auto inter = std::ranges::find(families, "Inter", &FontFamily::name);
  ASSERT_NE(inter, families.end());
  EXPECT_EQ(inter->postScriptName, "Inter-Regular");
  EXPECT_EQ(std::ranges::find(families, "Noto Color Emoji", &FontFamily::name), families.end());
}

TEST(Fonts, face_isTheOneOfTheNameOrTheSystems) {
  const auto styleOf = [](const Font& font) {
    const QRawFont face = QRawFont::fromFont(faceOf(font, 1));
    return face.familyName().toStdString() + "/" + face.styleName().toStdString();
  };
  EXPECT_EQ(styleOf({.name = "Inter-BoldItalic", .size = 18}), "Inter/Bold Italic");
  const std::string system = styleOf({.name = {}, .size = 18});
  for (const char* name : {"Helvetica", "No-Such-Font", "inter-bold", "Inter", "%s\n\"'"})
    EXPECT_EQ(styleOf({.name = name, .size = 18}), system) << name;
  EXPECT_EQ(styleOf({.name = {}, .size = 18, .weight = 700}), "Inter/Bold");
}

} // namespace
} // namespace vitrelle::host
