#include "tests/cli/Program.h"
#include "tests/support/Fakes.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <cstring>

namespace vitrelle {
namespace {

class FaceCommandTest : public test::ProgramTest {
 protected:
  std::string file() const { return (folder / "face.png").string(); }
};

TEST_F(FaceCommandTest, text_isDrawnAtTheSlotsSize) {
  const test::Outcome drawn =
      run({"face", "text", "--set", "textWidgetText=Hello", "--set", "textWidgetSize=30", "--set",
           "textWidgetShadow=false", "--list", file()});
  ASSERT_EQ(drawn.status, 0) << drawn.complaints;
  EXPECT_TRUE(drawn.complaints.empty()) << drawn.complaints;
  EXPECT_TRUE(drawn.output.starts_with("text \"Hello\" in \"\" 30 FFFFFF at ")) << drawn.output;
  EXPECT_EQ(readPicture(file()).size, (PixelSize{474, 474}));

  ASSERT_EQ(
      run({"face", "text", "--frame", "40x20.5", "--scale", "2", "--background", "336699", file()})
          .status,
      0);
  const Bitmap plain = readPicture(file());
  EXPECT_EQ(plain.size, (PixelSize{80, 41}));
  EXPECT_EQ(plain.row(20)[4 * 40], 0x33);
}

TEST_F(FaceCommandTest, everyPhone_hasFacesAsLargeAsItsSlices) {
  const auto sizeOn = [&](const std::vector<std::string>& told) {
    std::vector<std::string> arguments{"face", "text", "--set", "textWidgetText=x", file()};
    arguments.insert(arguments.end(), told.begin(), told.end());
    EXPECT_EQ(run(arguments).status, 0);
    return readPicture(file()).size;
  };
  EXPECT_EQ(sizeOn({"--phone", "iPhone 15 Pro", "--zoomed"}), (PixelSize{421, 421}));
  EXPECT_EQ(sizeOn({"--phone", "iPhone 15 Pro", "--zoomed", "--slot", "topMedium"}),
            (PixelSize{875, 421}));
  EXPECT_EQ(sizeOn({"--phone", "iPhone 11"}), (PixelSize{338, 338}));
  EXPECT_EQ(sizeOn({"--phone", "iPhone 11", "--zoomed"}), (PixelSize{310, 310}));
  EXPECT_EQ(sizeOn({"--phone", "iPhone SE (2nd generation)", "--zoomed"}), (PixelSize{282, 282}));
  EXPECT_EQ(sizeOn({"--phone", "iPhone 11", "--scale", "3"}), (PixelSize{507, 507}));
  EXPECT_EQ(sizeOn({"--phone", "iPhone 11", "--frame", "40x20"}), (PixelSize{80, 40}));
}

TEST_F(FaceCommandTest, record_isDrawnOverItsSlice) {
  const std::string screenshot = writePicture("screen.png", test::positionImage(1179, 2556));
  ASSERT_EQ(run({"style", "new", "--light", screenshot, "--dark", screenshot}).status, 0);
  const std::string json =
      R"([{"id":0,"textConfigTag":0,"textWidgetText":"","textWidgetFont":"","textWidgetSize":18,)"
      R"("textWidgetShadow":true,"textWidgetTextColour":"FF0000","textLinkedConfig":13}])";
  std::string digits;
  for (const char c : json) {
    char two[3];
    std::snprintf(two, sizeof two, "%02x", static_cast<unsigned char>(c));
    digits += two;
  }
  ASSERT_EQ(run({"defaults", "write", "savedTextWidgetData", "-data", digits}).status, 0);
  ASSERT_EQ(run({"face", "text", "--record", "0", "--background", "slice", file()}).status, 0);
  const Bitmap face = readPicture(file());
  const Bitmap slice = readPicture(groupFolder() / "0topLeftSmall.png");
  ASSERT_EQ(face.size, slice.size);
  for (int y = 0; y < face.size.height; ++y) // without words the slice is all there is
    ASSERT_EQ(std::memcmp(face.row(y), slice.row(y), 4 * static_cast<std::size_t>(face.size.width)),
              0)
        << y;
  EXPECT_EQ(run({"face", "text", "--record", "1", file()}).complaints,
            "vitrelle: savedTextWidgetData: it has no record 1\n");
  EXPECT_EQ(run({"--appearance", "dark", "face", "text", "--record", "0", "--slot", "topMedium",
                 "--background", "slice", file()})
                .status,
            0);
}

TEST_F(FaceCommandTest, standardOutput_takesThePicture) {
  for (const char* name : {"/proc/self/fd/1"}) {
    const test::Outcome outcome = run({"face", "text", "--set", "textWidgetText=x", name});
    EXPECT_EQ(outcome.status, 0) << outcome.complaints;
    EXPECT_TRUE(outcome.output.starts_with("\x89PNG")) << name;
    EXPECT_TRUE(outcome.output.ends_with("IEND\xae\x42\x60\x82")) << name;
  }
}

TEST_F(FaceCommandTest, wrongUsage_isTold) {
  using Arguments = std::vector<std::string>;
  for (const Arguments& arguments : {Arguments{"face"},
                                     {"face", "text"},
                                     {"face", "clockwork", file()},
                                     {"face", "text", "--set", "textWidgetSize", file()},
                                     {"face", "text", "--frame", "12", file()},
                                     {"face", "text", "--slot", "original", file()},
                                     {"face", "text", "--record", "0", "--current", file()},
                                     {"face", "text", "--scale", "4", file()}}) {
    const test::Outcome outcome = run(arguments);
    EXPECT_EQ(outcome.status, 2) << arguments.back();
    EXPECT_TRUE(outcome.complaints.starts_with("vitrelle: ")) << outcome.complaints;
  }
  for (const char* field : {"textWidgetColour=red", "textWidgetTextColour=red", "textWidgetSize=1x",
                            "textWidgetShadow=1"}) {
    const test::Outcome outcome = run({"face", "text", "--set", field, file()});
    EXPECT_EQ(outcome.status, 1) << field;
    EXPECT_TRUE(outcome.complaints.starts_with("vitrelle: textWidget")) << outcome.complaints;
  }
  EXPECT_EQ(run({"face", "text", "--current", file()}).complaints,
            "vitrelle: savedTextWidgetData: it has no records\n");
  EXPECT_EQ(run({"face", "text", "--background", "slice", file()}).status, 1) << "there is none";
  EXPECT_EQ(run({"face", "text", "--set", "textWidgetText=x", "/proc/none/face.png"}).status, 1);
}

} // namespace
} // namespace vitrelle
