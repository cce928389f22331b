#include "tests/cli/Program.h"
#include "tests/support/Fakes.h"

#include <nlohmann/json.hpp>

#include <gtest/gtest.h>

#include <fstream>

namespace vitrelle {
namespace {

class ImageCommandTest : public test::ProgramTest {
 protected:
  std::string picture(std::int32_t width, std::int32_t height) const {
    return writePicture("cut-out.png", test::positionImage(width, height));
  }
};

TEST_F(ImageCommandTest, newStyles_areMadeUpToTheLimitAndTheLastIsCurrent) {
  const std::string file = picture(30, 20);
  const test::Outcome first = run({"image", "new", file});
  EXPECT_EQ(first.output, "0  overlayImage0.png  800x534\n") << first.complaints;
  EXPECT_EQ(readPicture(groupFolder() / "overlayImage0.png").size, (PixelSize{800, 534}));
  for (int i = 1; i < 11; ++i)
    ASSERT_EQ(run({"image", "new", file}).status, 0) << i;
  const test::Outcome last =
      run({"image", "new", file, "--size", "large", "--position", "left", "--no-shadow", "--json"});
  EXPECT_EQ(nlohmann::json::parse(last.output), nlohmann::json({{"index", 11},
                                                                {"file", "overlayImage11.png"},
                                                                {"width", 800},
                                                                {"height", 534},
                                                                {"size", "large"},
                                                                {"position", "left"},
                                                                {"shadow", false}}));
  const auto records = nlohmann::json::parse(run({"records", "image", "--json"}).output);
  EXPECT_EQ(records[11]["imageConfigTag"], 11);
  EXPECT_EQ(records[11]["imageSize"], 1);
  EXPECT_EQ(records[11]["imagePosition"], "left");
  EXPECT_EQ(records[11]["imageShowShadow"], false);
  EXPECT_EQ(records[11]["imageLinkedConfig"], 13);
  EXPECT_EQ(run({"defaults", "read", "imageSelectedConfig"}).output, "11\n");

  const test::Outcome refused = run({"image", "new", file});
  EXPECT_EQ(refused.status, 1);
  EXPECT_EQ(refused.complaints, "vitrelle: image new: You've hit the max amount of Image Widget "
                                "Styles you can make, please edit an existing one.\n");
  EXPECT_FALSE(std::filesystem::exists(groupFolder() / "overlayImage12.png"));
}

TEST_F(ImageCommandTest, pictureThatCannotBeUsed_isOneLineAndNoStyle) {
  const std::string text = (folder / "text.png").string();
  std::ofstream(text) << "words";
  EXPECT_EQ(run({"image", "new", text}).complaints,
            "vitrelle: " + text + ": not a PNG, JPEG or HEIC picture\n");
  const std::string thin = picture(1, 4000);
  EXPECT_EQ(run({"image", "new", thin}).complaints,
            "vitrelle: " + thin + ": 800 by 3200000 pixels are more than a picture can have\n");
  EXPECT_EQ(run({"image", "new", thin, "--position", "middle"}).status, 2);
  EXPECT_EQ(run({"records", "image", "--json"}).output, "[]\n");
}

TEST_F(ImageCommandTest, face_showsTheStoredPictureOrOneToTry) {
  const auto drawn = [&](std::vector<std::string> more) {
    more.insert(more.begin(), {"face", "image", "--list", "--set", "imageShowShadow=false"});
    return run(more).output;
  };
  EXPECT_EQ(drawn({}), "");
  ASSERT_EQ(run({"image", "new", picture(30, 20)}).status, 0);
  EXPECT_EQ(drawn({}), "") << "a new style has none";
  EXPECT_TRUE(drawn({"--record", "0"}).starts_with("image 800 534 at "));
  EXPECT_EQ(drawn({"--record", "0", "--slot", "topMedium", "--set", "imagePosition=middle"}), "");
  EXPECT_TRUE(drawn({"--picture", picture(30, 20)}).starts_with("image 30 20 at "));
}

} // namespace
} // namespace vitrelle
