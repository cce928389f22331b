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

/// Stems and rectangles of the twelve files, in order, from the measurements that `cut` tells.
std::vector<std::pair<const char*, PixelRect>> slices(PixelCount whole, const Json& measurements) {
  const auto number = [&](const char* key) { return measurements[key].get<std::int64_t>(); };
  const std::int64_t size = number("widgetSize");
  const std::int64_t wide = size + number("horizontalSpacing");
  const std::int64_t high = size + number("verticalSpacing");
  const std::int64_t left = number("leftSpacing");
  const std::int64_t right = left + number("horizontalSpacing");
  const std::int64_t top = number("topSpacing");
  const std::int64_t middle = top + number("verticalSpacing");
  const std::int64_t bottom = middle + number("verticalSpacing");
  return {{"original", {0, 0, whole.first, whole.second}},
          {"topLeftSmall", {left, top, size, size}},
          {"topRightSmall", {right, top, size, size}},
          {"midLeftSmall", {left, middle, size, size}},
          {"midRightSmall", {right, middle, size, size}},
          {"bottomLeftSmall", {left, bottom, size, size}},
          {"bottomRightSmall", {right, bottom, size, size}},
          {"topMedium", {left, top, wide, size}},
          {"midMedium", {left, middle, wide, size}},
          {"bottomMedium", {left, bottom, wide, size}},
          {"topLarge", {left, top, wide, high}},
          {"bottomLarge", {left, middle, wide, high}}};
}

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
        EXPECT_EQ(outcome.output, "") << what;
        EXPECT_TRUE(outcome.complaints.starts_with("vitrelle: " + phone["name"].get<std::string>()))
            << what << outcome.complaints;
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

      std::size_t index = 0;
      for (const auto& [stem, rectangle] : slices(pixels, result["measurements"])) {
        const Json& file = result["files"][index++];
        const std::string name = std::string("3") + stem + "Dark.png";
        EXPECT_EQ(file["name"], name) << what;
        EXPECT_EQ(file["width"], rectangle.width) << what << ' ' << name;
        EXPECT_EQ(file["height"], rectangle.height) << what << ' ' << name;
        EXPECT_EQ(file["bytes"], fs::file_size(groupFolder() / name)) << what << ' ' << name;
        EXPECT_TRUE(test::isPart(readPicture(groupFolder() / name), screenshot, rectangle))
            << what << ' ' << name;
      }
    }
  }
  EXPECT_GT(seen.size(), 30U);
}

TEST_F(CutCommandTest, debugConsole_andJsonDoNotMix) {
  const std::string good = writePicture("good.png", test::positionImage(1179, 2556));
  const Outcome outcome = run({"--verbose", "cut", "--style", "12", "--dark", good, "--json"});
  EXPECT_EQ(Json::parse(outcome.output)["files"].size(), 12U);
  EXPECT_NE(outcome.complaints.find("Storing at 12original\n"), std::string::npos)
      << outcome.complaints;
}

TEST_F(CutCommandTest, groupFolder_isForItsOwnerOnly) {
  const std::string good = writePicture("good.png", test::positionImage(1179, 2556));
  ASSERT_EQ(run({"cut", "--style", "0", "--light", good, "--dark", good}).status, 0);
  EXPECT_EQ(fs::status(groupFolder()).permissions(), fs::perms(0700));
  EXPECT_EQ(names().size(), 24U);
  for (const std::string& name : names()) {
    EXPECT_EQ(fs::status(groupFolder() / name).permissions(), fs::perms(0600)) << name;
  }
}

TEST_F(CutCommandTest, badSecondScreenshot_leavesEverythingAsItWas) {
  const std::string good = writePicture("good.png", test::positionImage(1179, 2556));
  ASSERT_EQ(run({"cut", "--style", "0", "--light", good}).status, 0);
  const auto before = fs::last_write_time(groupFolder() / "0original.png");
  const std::string text = (folder / "text.png").string();
  std::ofstream(text) << "not a picture";
  const std::string half = (folder / "half.png").string(); // its header is sound
  fs::copy_file(good, half);
  fs::resize_file(half, fs::file_size(good) / 2);
  const std::pair<std::string, std::string> cases[] = {{text, "not a PNG, JPEG or HEIC picture"},
                                                       {half, "the file is incomplete"}};
  for (const auto& [bad, why] : cases) {
    const Outcome outcome = run({"cut", "--style", "0", "--light", good, "--dark", bad});
    EXPECT_EQ(outcome.status, 1) << bad;
    EXPECT_EQ(outcome.output, "") << bad;
    EXPECT_TRUE(outcome.complaints.starts_with("vitrelle: " + bad + ": " + why))
        << outcome.complaints;
    EXPECT_EQ(fs::last_write_time(groupFolder() / "0original.png"), before) << bad;
    EXPECT_EQ(names().size(), 12U) << bad;
  }
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
      {"cut", "--style", "99999999999999999999", "--light", "x.png"},
  };
  for (const auto& arguments : cases) {
    const Outcome outcome = run(arguments);
    const std::string what = testing::PrintToString(arguments);
    EXPECT_EQ(outcome.status, 2) << what;
    EXPECT_EQ(outcome.output, "") << what;
    EXPECT_TRUE(outcome.complaints.starts_with("vitrelle: ")) << what << outcome.complaints;
    EXPECT_EQ(outcome.complaints.find('\n') + 1, outcome.complaints.size()) << outcome.complaints;
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
  const Image pictures[] = {test::positionImage(1179, 2556),
                            *test::positionImage(1400, 2700).cropped({100, 77, 1179, 2556})};
  const std::string paths[] = {writePicture("first.png", pictures[0]),
                               writePicture("second.png", pictures[1])};
  const auto begin = std::chrono::steady_clock::now();
  const Outcome undisturbed = run({"cut", "--style", "0", "--light", paths[0], "--json"});
  const auto whole = std::chrono::steady_clock::now() - begin;
  ASSERT_EQ(undisturbed.status, 0);
  const auto twelve = slices({1179, 2556}, Json::parse(undisturbed.output)["measurements"]);
  const std::set<std::string> expected = names();
  ASSERT_EQ(expected.size(), twelve.size());

  std::mt19937 random(11);
  int mixtures = 0;
  for (int round = 1; round <= 60; ++round) {
    const pid_t child = start({"cut", "--style", "0", "--light", paths[round % 2]});
    std::this_thread::sleep_for(whole * (random() % 1000) / 1000);
    kill(child, SIGKILL);
    waitpid(child, nullptr, 0);
    ASSERT_EQ(names(), expected) << "litter in round " << round;
    int ofFirst = 0;
    for (const auto& [stem, rectangle] : twelve) {
      const Bitmap slice = readPicture(groupFolder() / (std::string("0") + stem + ".png"));
      const bool first = test::isPart(slice, pictures[0], rectangle);
      EXPECT_TRUE(first || test::isPart(slice, pictures[1], rectangle))
          << stem << " in round " << round;
      ofFirst += first ? 1 : 0;
    }
    if (ofFirst % 12 != 0) ++mixtures;
  }
  EXPECT_GT(mixtures, 0) << "no round ended between two files: they were all too early or late";
}

} // namespace
} // namespace vitrelle
