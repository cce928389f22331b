#include "host/drawing/TextLayout.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <string>
#include <utility>

namespace vitrelle::host {
namespace {

constexpr double endless = std::numeric_limits<double>::infinity();

TextLayout layOut(const char* text, double width, double height, double size = 20) {
  return layOutText(QString::fromUtf8(text), {.name = {}, .size = size}, {width, height});
}

TEST(TextLayout, lines_breakAtWordsAndInsideLongOnes) {
  const double oneLine = layOut("x", endless, endless).size.height;
  EXPECT_EQ(layOut("", endless, endless).size, (PointSize{0, oneLine}));
  EXPECT_EQ(layOut("one two", endless, endless).lines.size(), 1U);
  EXPECT_EQ(layOut("one two", 45, endless).lines.size(), 2U);
  EXPECT_EQ(layOut("one\ntwo\r\n", endless, endless).lines.size(), 3U);
  const TextLayout longWord = layOut("Donaudampfschiff", 60, endless);
  EXPECT_GT(longWord.lines.size(), 2U);
  EXPECT_LE(longWord.size.width, 60);
}

TEST(TextLayout, whatDoesNotFit_endsInDots) {
  const TextLayout whole = layOut("one two three four", 52, endless);
  const TextLayout cut = layOut("one two three four", 52, 55);
  EXPECT_EQ(whole.lines.size(), 4U);
  ASSERT_EQ(cut.lines.size(), 2U);
  EXPECT_LE(cut.size.height, 55);
  EXPECT_EQ(cut.lines[0].width, whole.lines[0].width);
  EXPECT_GT(cut.lines[1].width, whole.lines[1].width) << "dots follow the second word";
  EXPECT_EQ(layOut("one two", 45, 1).lines.size(), 1U) << "one line there is always";
  EXPECT_EQ(layOut("a\nb", endless, 30).lines.size(), 1U);
}

TEST(TextLayout, sizes_growWithTheFontAlone) {
  const double at20 = layOut("Vitrelle", endless, endless, 20).size.width;
  const double at80 = layOut("Vitrelle", endless, endless, 80).size.width;
  EXPECT_NEAR(at80, 4 * at20, 1.5);
  EXPECT_GT(layOut("Vitrelle", endless, endless, 0).size.height, 0);
}

TEST(TextLayout, hostileRecords_cannotAskForMoreThanCanBeShown) {
  for (const double size : {-1e18, 1e9, 1e18, 4e300})
    EXPECT_LT(layOut("x", 158, 158, size).size.height, 2000) << size;
  const std::string endlessWord(1 << 20, 'w');
  EXPECT_LE(layOut(endlessWord.c_str(), 158, 158, 10).lines.size(), 13U);
  const TextLayout whole = layOut(endlessWord.c_str(), endless, endless, 10);
  EXPECT_EQ(whole.lines.size(), 1U);
  EXPECT_LT(whole.size.width, 100000);
}

TEST(TextLayout, controlCharacters_areLeftOutAndSeparatorsBreak) {
  EXPECT_EQ(layOut("a\x01\x07\x1b"
                   "b",
                   endless, endless)
                .size,
            layOut("ab", endless, endless).size);
  EXPECT_EQ(layOut("a\u2028b\u2029c", endless, endless).lines.size(), 3U);
}

TEST(TextLayout, direction_isThatOfTheParagraph) {
  const TextLayout mixed = layOut("abc\nשלום abc", endless, endless);
  EXPECT_FALSE(mixed.lines[0].rightToLeft);
  EXPECT_TRUE(mixed.lines[1].rightToLeft);
  EXPECT_LT(mixed.lines[1].width, 200) << "the line begins at its own left end";
}

TEST(TextLayout, combiningMarks_takeNoRoom) {
  const double plain = layOut("e", endless, endless).size.width;
  EXPECT_NEAR(layOut("e\u0301", endless, endless).size.width, plain, 1);
}

TEST(TextLayout, emoji_areOnePictureEach) {
  const double one = layOut("🎉", endless, endless).size.width;
  for (const char* picture :
       {"❤️", "👍🏽", "✌🏿", "🇩🇪", "👨‍👩‍👧", "1️⃣", "#⃣",
        "🏴󠁧󠁢󠁥󠁮󠁧󠁿", "❤️‍🔥", "☎️"}) {
    const TextLayout layout = layOut(picture, endless, endless);
    EXPECT_EQ(layout.size.width, one) << picture;
    for (const QGlyphRun& run : layout.lines[0].runs)
      EXPECT_EQ(run.rawFont().familyName(), QStringLiteral("Noto Color Emoji")) << picture;
  }
  EXPECT_EQ(layOut("🇩🇪🇫🇷🎉", endless, endless).size.width, 3 * one);
  for (const char* letter : {"5", "#", "©", "☎", "❤︎", "é"}) {
    const TextLayout layout = layOut(letter, endless, endless);
    for (const QGlyphRun& run : layout.lines[0].runs)
      EXPECT_NE(run.rawFont().familyName(), QStringLiteral("Noto Color Emoji")) << letter;
  }
}

TEST(TextLayout, evenDigits_standStillWhateverTheTime) {
  const auto clock = [](const char* time, const char* font, bool even) {
    return layOutText(QString::fromUtf8(time), {.name = font, .size = 40, .evenDigits = even},
                      {endless, endless});
  };
  for (const char* font : {"", "Inter-BoldItalic"}) {
    EXPECT_NE(clock("11:11", font, false).size, clock("00:00", font, false).size);
    const TextLayout noon = clock("00:00", font, true);
    for (const char* time : {"11:11", "13:30", "23:59"})
      EXPECT_EQ(clock(time, font, true).size, noon.size) << time;
    EXPECT_NEAR(noon.size.width, clock("00:00", font, false).size.width, 4);
    EXPECT_LT(clock("1", font, true).lines[0].runs[0].positions()[0].x(), 40) << "in its cell";
    EXPECT_GT(clock("1", font, true).lines[0].runs[0].positions()[0].x(), 5) << "and in the middle";
    EXPECT_EQ(clock("ab", font, true).size, clock("ab", font, false).size);
  }
  EXPECT_TRUE(clock("١:٣٠ م", "", true).lines[0].rightToLeft);
}

TEST(TextLayout, clockThatIsTooWide_isBrokenBeforeItsWords) {
  const Font font{.size = 40, .evenDigits = true};
  const double time = layOutText(QStringLiteral("1:30"), font, {endless, endless}).size.width;
  const QString words = QStringLiteral("1:30\u202FPM"); // as many locales have it
  const TextLayout broken = layOutText(words, font, {time + 20, endless});
  ASSERT_EQ(broken.lines.size(), 2U);
  EXPECT_GE(broken.lines[0].width, time - 1); // without what is added for rounding
}

TEST(TextLayout, cutLine_keepsTheDirectionOfItsParagraph) {
  const char* text = "שלום this is English for a few lines";
  const TextLayout whole = layOut(text, 100, endless);
  const TextLayout cut = layOut(text, 100, 50);
  ASSERT_GT(whole.lines.size(), 2U);
  ASSERT_EQ(cut.lines.size(), 2U);
  EXPECT_TRUE(cut.lines[1].rightToLeft) << "though no letter in it is";
  const auto glyphAtLeft = [](const TextLine& line) {
    std::pair<double, quint32> leftmost{endless, 0};
    for (const QGlyphRun& run : line.runs) {
      for (qsizetype i = 0; i < run.glyphIndexes().size(); ++i)
        leftmost = std::min(leftmost, {run.positions()[i].x(), run.glyphIndexes()[i]});
    }
    return leftmost.second;
  };
  EXPECT_EQ(glyphAtLeft(cut.lines[1]), glyphAtLeft(layOut("…", endless, endless).lines[0]))
      << "the dots are at the end, which is on the left";
  EXPECT_FALSE(layOut("English and then\nשלום", 60, 20).lines[0].rightToLeft);
}

} // namespace
} // namespace vitrelle::host
