#include "host/phone/PhoneSettings.h"

#include "host/desktop/MainQueue.h"
#include "host/desktop/PollLoop.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <utility>
#include <vector>

namespace vitrelle::host {
namespace {

namespace fs = std::filesystem;

const PhoneChoice today{.identifier = "iPhone16,1", .os = {18, 0, 0}};
const PhoneChoice small{.identifier = "iPhone14,6",
                        .os = {17, 2, 1},
                        .zoomed = true,
                        .appearance = AppearanceChoice::dark};

class PhoneSettingsTest : public testing::Test {
 protected:
  PhoneSettingsTest() { fs::create_directories(home.path()); }
  ~PhoneSettingsTest() override { fs::remove_all(folder); }

  PhoneOperations made(const PhoneOverrides& overrides = {}) {
    return makePhone(home, overrides, loop.operations());
  }
  /// Until something stops the loop, or nothing did.
  bool run(double seconds) {
    bool came = true;
    const auto end = makeMainQueue(loop.operations()).asyncAfter(seconds, [&] {
      came = false;
      loop.stop();
    });
    loop.run();
    return came;
  }
  static fs::path makeTemporary() {
    std::string pattern = (fs::temp_directory_path() / "phoneXXXXXX").string();
    return mkdtemp(pattern.data());
  }

  const fs::path folder = makeTemporary();
  const HomeFolder home{(folder / "home").string()};
  PollLoop loop;
};

TEST_F(PhoneSettingsTest, save_holdsAtOnceAndForLaterPrograms) {
  const PhoneOperations own = made({.identifier = "iPhone16,2",
                                    .os = OsVersion{18, 1, 0},
                                    .zoomed = false,
                                    .appearance = AppearanceChoice::light});
  EXPECT_EQ(own.device.screenBounds().width, 430);
  EXPECT_EQ(own.device.userInterfaceStyle(), 1);
  std::vector<PhoneChoice> told;
  const Subscription watching =
      own.phoneBook.watch([&](const PhoneChoice& choice) { told.push_back(choice); });
  ASSERT_TRUE(own.phoneBook.save(small));
  ASSERT_TRUE(own.phoneBook.save(small));
  EXPECT_EQ(told, std::vector{small}) << "once";
  EXPECT_EQ(own.phoneBook.current(), small) << "whatever the program was told";
  EXPECT_EQ(own.device.environment("SIMULATOR_MODEL_IDENTIFIER"), "iPhone14,6");
  EXPECT_FALSE(own.device.isOperatingSystemAtLeast({18, 0, 0}));
  EXPECT_EQ(own.device.screenBounds(), (PointSize{320, 568}));
  EXPECT_LT(own.device.screenScale(), own.device.screenNativeScale());
  EXPECT_EQ(own.device.userInterfaceStyle(), 2);
  EXPECT_EQ(made().phoneBook.current(), small);
  EXPECT_EQ(made({.appearance = AppearanceChoice::desktop}).device.userInterfaceStyle(), 1);
}

TEST_F(PhoneSettingsTest, file_thatIsOlderOrGarbledStandsForWhatItTells) {
  const std::pair<std::string, PhoneChoice> cases[] = {
      {"identifier=iPhone14,6\nos=17.2.1\nzoomed=true\n",
       {.identifier = "iPhone14,6", .os = {17, 2, 1}, .zoomed = true}},
      {"identifier=iPhone14,6\nos=17.2.1\nzoomed=true\nappearance=dark\n", small},
      {"appearance=Dark\nidentifier=x86_64\nos=-\nzoomed=1", today},
      {"appearance=light",
       {.identifier = "iPhone16,1", .os = {18, 0, 0}, .appearance = AppearanceChoice::light}},
      {"identifier=iFridge9,9\nappearance\n", {.identifier = "iFridge9,9", .os = {18, 0, 0}}},
      {std::string(100'000, 'x'), today},
      {std::string("\0\xFF=\n\n=", 6), today}};
  for (const auto& [text, expected] : cases) {
    std::ofstream(home.phoneFile()) << text;
    const PhoneOperations own = made();
    EXPECT_EQ(own.phoneBook.current(), expected) << text.substr(0, 60);
    EXPECT_GT(own.device.screenBounds().width, 0);
  }
}

TEST_F(PhoneSettingsTest, otherProcesses_areFollowedButForWhatWasTold) {
  const PhoneOperations own = made({.os = OsVersion{18, 2, 0}});
  int told = 0;
  const Subscription watching = own.phoneBook.watch([&](const PhoneChoice&) {
    ++told;
    loop.stop();
  });
  ASSERT_TRUE(made().phoneBook.save(small));
  ASSERT_TRUE(run(10));
  PhoneChoice expected = small;
  expected.os = {18, 2, 0};
  EXPECT_EQ(own.phoneBook.current(), expected);

  ASSERT_TRUE(own.phoneBook.save(today));
  EXPECT_FALSE(run(0.2)) << "what it wrote itself is no news";
  EXPECT_EQ(own.phoneBook.current(), today);
  ASSERT_TRUE(made().phoneBook.save(small));
  ASSERT_TRUE(run(10));
  EXPECT_EQ(own.phoneBook.current(), small) << "what was told no longer counts";
  EXPECT_EQ(told, 3);
}

TEST_F(PhoneSettingsTest, choiceThatCantBeKept_holdsForThisProgram) {
  fs::remove_all(home.path());
  std::ofstream(home.path()) << "a file in its way";
  const PhoneOperations own = made();
  const Subscription watching = own.phoneBook.watch([](const PhoneChoice&) {});
  EXPECT_FALSE(own.phoneBook.save(small));
  EXPECT_EQ(own.phoneBook.current(), small);
  EXPECT_EQ(made().phoneBook.current(), today);
}

} // namespace
} // namespace vitrelle::host
