#include "tests/cli/Program.h"
#include "tests/support/Fakes.h"

#include <nlohmann/json.hpp>

#include <chrono>
#include <csignal>
#include <fstream>
#include <random>
#include <set>
#include <thread>

#include <sys/wait.h>

namespace vitrelle {
namespace {

namespace fs = std::filesystem;
using Json = nlohmann::json;
using test::Outcome;

using PixelCount = std::pair<std::int32_t, std::int32_t>;

class CutCommandTest : public test::ProgramTest {
 protected:
  std::set<std::string> names() const {
    std::set<std::string> found;
    for (const auto& entry : fs::directory_iterator(groupFolder())) {
      found.insert(entry.path().filename().string());
    }
    return found;
  }
};

TEST_F(CutCommandTest, everyPhoneInEverySituation_getsThePixelsOfItsSlots) {
  const Json phones = Json::parse(run({"phones", "--json"}).output);
  EXPECT_EQ(phones.size(), 43U);
  std::set<std::string> seen;
  std::map<PixelCount, std::pair<Image, std::string>> screenshots; // and their paths
  for (const Json& phone : phones) {
    for (const char* situation : {"ios18", "classic", "zoomed"}) {
      const bool zoomed = std::string(situation) == "zoomed";
      const Json& size = phone[zoomed ? "zoomedScreenshot" : "screenshot"];
      std::vector<std::string> arguments = {"cut",
                                            "--style",
                                            "3",
                                            "--json",
                                            "--phone",
                                            phone["name"],
                                            zoomed ? "--zoomed" : "--standard",
                                            "--os",
                                            std::string(situation) == "classic" ? "17.4" : "18.1"};
      const std::string what = phone["name"].get<std::string>() + " " + situation;
      if (!phone["measured"][situation]) {
        arguments.insert(arguments.end(), {"--light", "none.png"});
        const Outcome outcome = run(arguments);
        EXPECT_EQ(outcome.status, 3) << what;
        continue;
      }
      const PixelCount pixels(size["width"], size["height"]);
      if (!screenshots.contains(pixels)) {
        const Image made = test::positionImage(pixels.first, pixels.second);
        const std::string path = writePicture(size.dump() + ".png", made);
        screenshots.emplace(pixels, std::pair(made, path));
      }
      const auto& [screenshot, path] = screenshots.at(pixels);
      arguments.insert(arguments.end(), {"--dark", path});
      const Outcome outcome = run(arguments);
      ASSERT_EQ(outcome.status, 0) << what << outcome.complaints;
      EXPECT_EQ(outcome.complaints, "") << what;
      const Json result = Json::parse(outcome.output);
      ASSERT_EQ(result["files"].size(), 12U) << what;
      // The same numbers give the same slices: once for each is enough.
      if (!seen.insert(result["measurements"].dump()).second) continue;

      const Json& m = result["measurements"];
      const auto number = [&](const char* key) { return m[key].get<std::int64_t>(); };
      const std::int64_t left = number("leftSpacing");
      const std::int64_t right = left + number("horizontalSpacing");
      const std::int64_t rows[] = {number("topSpacing"),
                                   number("topSpacing") + number("verticalSpacing"),
                                   number("topSpacing") + 2 * number("verticalSpacing")};
      const std::tuple<const char*, std::int64_t, std::int64_t> slices[] = {
          {"original", 0, 0},
          {"topLeftSmall", left, rows[0]},
          {"topRightSmall", right, rows[0]},
          {"midLeftSmall", left, rows[1]},
          {"midRightSmall", right, rows[1]},
          {"bottomLeftSmall", left, rows[2]},
          {"bottomRightSmall", right, rows[2]},
          {"topMedium", left, rows[0]},
          {"midMedium", left, rows[1]},
          {"bottomMedium", left, rows[2]},
          {"topLarge", left, rows[0]},
          {"bottomLarge", left, rows[1]}};
      std::size_t index = 0;
      for (const auto& [stem, x, y] : slices) {
        const Json& file = result["files"][index++];
        const std::string name = std::string("3") + stem + "Dark.png";
        EXPECT_EQ(file["name"], name) << what;
        const Image slice = readPicture(groupFolder() / name);
        EXPECT_EQ(slice.size(), (PixelSize{file["width"], file["height"]})) << what;
        EXPECT_TRUE(test::isPartAt(slice, screenshot, x, y)) << what << ' ' << stem;
      }
    }
  }
  EXPECT_GT(seen.size(), 30U);
}

TEST_F(CutCommandTest, badSecondScreenshot_leavesEverythingAsItWas) {
  const std::string good = writePicture("good.png", test::positionImage(1179, 2556));
  ASSERT_EQ(run({"cut", "--style", "0", "--light", good}).status, 0);
  const auto before = fs::last_write_time(groupFolder() / "0original.png");
  std::ofstream(folder / "bad.png") << "not a picture";
  const Outcome outcome =
      run({"cut", "--style", "0", "--light", good, "--dark", (folder / "bad.png").string()});
  EXPECT_EQ(outcome.status, 1);
  EXPECT_EQ(outcome.output, "");
  EXPECT_EQ(outcome.complaints,
            "vitrelle: " + (folder / "bad.png").string() + ": not a PNG, JPEG or HEIC picture\n");
  EXPECT_EQ(fs::last_write_time(groupFolder() / "0original.png"), before);
  EXPECT_EQ(names().size(), 12U);
}

TEST_F(CutCommandTest, screenshotOfAnotherSize_isCutAndComplainedOf) {
  const std::string small = writePicture("small.png", test::positionImage(600, 900));
  const Outcome outcome = run({"cut", "--style", "0", "--light", small});
  EXPECT_EQ(outcome.status, 1);
  EXPECT_NE(outcome.complaints.find("600x900"), std::string::npos) << outcome.complaints;
  EXPECT_NE(outcome.complaints.find("6 of the eleven slots"), std::string::npos);
  EXPECT_TRUE(names().contains("0original.png"));
}

TEST_F(CutCommandTest, wrongUsage_isSaidInOneLineWithStatusTwo) {
  const std::vector<std::vector<std::string>> cases = {
      {},
      {"cut"},
      {"cut", "--style", "0"},
      {"cut", "--light", "x.png"},
      {"cut", "--style", "-1", "--light", "x.png"},
      {"cut", "--style", "x", "--light", "x.png"},
      {"cut", "--batch", "here"},
      {"cut", "--into", "there", "--style", "0", "--light", "x.png"},
      {"cut", "--style", "0", "--light", "x.png", "--phone", "iPhone 99"},
      {"cut", "--style", "0", "--light", "x.png", "--os", "eighteen"},
      {"--zoomed", "--standard", "phones"},
      {"slice"},
  };
  for (const auto& arguments : cases) {
    const Outcome outcome = run(arguments);
    const std::string what = testing::PrintToString(arguments);
    EXPECT_EQ(outcome.status, 2) << what;
    EXPECT_EQ(outcome.output, "") << what;
    EXPECT_TRUE(outcome.complaints.starts_with("vitrelle: ")) << what << outcome.complaints;
  }
}

TEST_F(CutCommandTest, batch_numbersThePairsByName) {
  const Image screenshot = test::positionImage(1179, 2556);
  for (const char* name : {"beach-light.png", "beach-dark.png", "alps-light.png", "alps-dark.png",
                           "city-light.png", "notes.png"}) {
    writePicture(std::string("in/") + name, screenshot);
  }
  const std::string into = (folder / "out").string();
  const Outcome outcome = run({"cut", "--batch", (folder / "in").string(), "--into", into});
  EXPECT_EQ(outcome.status, 1) << "the city has no dark picture";
  EXPECT_EQ(outcome.complaints, "vitrelle: city: it has no dark picture\n");
  EXPECT_NE(outcome.output.find("0  alps"), std::string::npos) << outcome.output;
  EXPECT_NE(outcome.output.find("1  beach"), std::string::npos) << outcome.output;
  EXPECT_TRUE(fs::exists(folder / "out" / "1bottomLargeDark.png"));
  std::size_t files = 0;
  for (const auto& entry : fs::directory_iterator(into))
    files += entry.exists() ? 1 : 0;
  EXPECT_EQ(files, 48U);
}

TEST_F(CutCommandTest, killedAtAnyMoment_leavesEveryFileWhole) {
  const Image first = test::positionImage(1179, 2556);
  const Image second = *test::positionImage(1400, 2700).cropped({100, 77, 1179, 2556});
  const std::string paths[] = {writePicture("first.png", first),
                               writePicture("second.png", second)};
  ASSERT_EQ(run({"cut", "--style", "0", "--light", paths[0]}).status, 0);
  const std::set<std::string> expected = names();
  std::mt19937 random(11);
  for (int round = 0; round < 60; ++round) {
    const pid_t child = start({"cut", "--style", "0", "--light", paths[round % 2]});
    std::this_thread::sleep_for(std::chrono::microseconds(random() % 150'000));
    kill(child, SIGKILL);
    waitpid(child, nullptr, 0);
    ASSERT_EQ(names(), expected) << "no litter";
    for (const std::string& name : {std::string("0original.png"), std::string("0bottomLarge.png"),
                                    std::string("0midRightSmall.png")}) {
      const Image slice = readPicture(groupFolder() / name);
      const std::int64_t x = name == "0original.png" ? 0 : name == "0bottomLarge.png" ? 83 : 623;
      const std::int64_t y = name == "0original.png" ? 0 : 828;
      EXPECT_TRUE(test::isPartAt(slice, first, x, y) || test::isPartAt(slice, second, x, y))
          << name << " in round " << round;
    }
  }
}

} // namespace
} // namespace vitrelle
