#include "host/drawing/Fonts.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QRawFont>

#include <algorithm>
#include <chrono>
#include <string>
#include <thread>
#include <utility>

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

TEST(Fonts, signsInPlacesOfLetters_areNotListed) {
  for (const FontFamily& family : makeFonts().families()) { // where they are installed
    EXPECT_NE(family.name, "D050000L");
    EXPECT_NE(family.name, "Standard Symbols PS");
  }
}

std::string styleOf(const Font& font) {
  const QRawFont face = QRawFont::fromFont(faceOf(font, 1));
  return face.familyName().toStdString() + "/" + face.styleName().toStdString();
}

TEST(Fonts, slantedFace_isNotItsFamilysUprightOne) {
  const std::pair<const char*, const char*> faces[] = {
      {"Inter-Italic", "Inter/Italic"},
      {"Inter-ThinItalic", "Inter/Thin Italic"},
      {"NimbusSans-Italic", "Nimbus Sans/Italic"}, // by two makers of one name
      {"NimbusSans-BoldItalic", "Nimbus Sans/Bold Italic"},
      {"NimbusSansNarrow-Oblique", "Nimbus Sans Narrow/Oblique"}};
  for (const auto& [name, style] : faces) {
    const std::string drawn = styleOf({.name = name});
    if (drawn != styleOf({})) { // installed
      EXPECT_EQ(drawn, style);
    }
  }
}

TEST(Fonts, weight_isThatOfTheNamedFacesFamily) {
  EXPECT_EQ(styleOf({.name = "Inter-Regular", .weight = 600}), "Inter/Semi Bold");
  EXPECT_EQ(styleOf({.name = "Inter-Italic", .weight = 600}), "Inter/Semi Bold Italic");
  EXPECT_EQ(styleOf({.name = "Inter-Black"}), "Inter/Black") << "its own where none is told";
  EXPECT_EQ(styleOf({.name = "NoSuchFont", .weight = 600}), "Inter/Semi Bold");
}

/// A font with another name, in the user's own folder of fonts.
void installRenamedInter() {
  const QString fonts = qEnvironmentVariable("XDG_DATA_HOME") + QStringLiteral("/fonts");
  ASSERT_TRUE(QDir().mkpath(fonts));
  const QRawFont inter = QRawFont::fromFont(faceOf({.name = "Inter-Black"}, 1));
  QFile original(QStringLiteral("/usr/share/fonts/opentype/inter/Inter-Black.otf"));
  if (!original.open(QIODevice::ReadOnly)) GTEST_SKIP() << "Inter lies elsewhere";
  QByteArray bytes = original.readAll();
  const QByteArray names = inter.fontTable("name");
  QByteArray renamed = names;
  renamed.replace(QByteArray("\0I\0n\0t\0e\0r", 10), QByteArray("\0O\0u\0t\0e\0r", 10));
  bytes.replace(names, renamed);
  QFile copy(fonts + QStringLiteral("/Outer.otf"));
  ASSERT_TRUE(copy.open(QIODevice::WriteOnly));
  ASSERT_EQ(copy.write(bytes), bytes.size());
}

TEST(Fonts, fontInstalledMeanwhile_isListedAndDrawn) {
  const auto isListed = [] {
    const auto families = makeFonts().families();
    return std::ranges::find(families, "Outer", &FontFamily::name) != families.end();
  };
  const Font outer{.name = "Outer-Black", .size = 18};
  EXPECT_FALSE(isListed());
  EXPECT_EQ(styleOf(outer), styleOf({}));
  std::this_thread::sleep_for(
      std::chrono::milliseconds(1100)); // the times of folders are told in seconds
  installRenamedInter();
  if (testing::Test::IsSkipped()) return;
  lookForFont(outer.name);
  EXPECT_EQ(styleOf(outer), "Outer/Black");
  EXPECT_TRUE(isListed());
}

TEST(Fonts, face_isTheOneOfTheNameOrTheSystems) {
  EXPECT_EQ(styleOf({.name = "Inter-BoldItalic", .size = 18}), "Inter/Bold Italic");
  const std::string system = styleOf({.name = {}, .size = 18});
  for (const char* name : {"Helvetica", "No-Such-Font", "inter-bold", "Inter", "%s\n\"'"})
    EXPECT_EQ(styleOf({.name = name, .size = 18}), system) << name;
  EXPECT_EQ(styleOf({.name = {}, .size = 18, .weight = 700}), "Inter/Bold");
}

} // namespace
} // namespace vitrelle::host
