#include "core/slicing/ScreenshotPhones.h"

#include "core/slicing/DeviceNames.h"
#include "core/slicing/PhoneChoices.h"
#include "host/phone/PhoneModels.h"
#include "tests/support/Fakes.h"
#include "tests/support/UnimplementedPlatform.h"

#include <gtest/gtest.h>

namespace vitrelle {
namespace {

const PhoneChoice fifteenPro{.identifier = "iPhone16,1", .os = {18, 1, 0}};

/// "iPhone SE (3rd generation), iPhone 7 zoomed @18" for each.
std::vector<std::string> origins(const PhoneChoice& present, PixelSize size) {
  std::vector<std::string> texts;
  for (const ScreenshotOrigin& origin : screenshotOrigins(host::phoneModels(), present, size)) {
    std::string text;
    for (const auto& phone : origin.phones)
      text += (text.empty() ? "" : ", ") + phone.name + (phone.zoomed ? " zoomed" : "");
    text += " @" + std::to_string(origin.choice.os.major) + (origin.choice.zoomed ? " zoomed" : "");
    texts.push_back(text + (origin.isMeasured ? "" : " unmeasured"));
  }
  return texts;
}

TEST(ScreenshotPhones, origins_areThePhonesOfASizeByTheirSlots) {
  using Texts = std::vector<std::string>;
  struct Case {
    PixelSize size;
    Texts expected;
  };
  const Case cases[] = {
      {{640, 1136},
       {"iPhone SE, iPhone SE (3rd generation) zoomed, iPhone SE (2nd generation) zoomed, "
        "iPhone 8 zoomed, iPhone 7 zoomed, iPhone 6s zoomed, iPhone 6 zoomed @17"}},
      {{750, 1334},
       {"iPhone SE (3rd generation), iPhone SE (2nd generation), iPhone 7, iPhone 6s, iPhone 6 @18",
        "iPhone 8 @17"}},
      {{828, 1792}, {"iPhone 11, iPhone XR @18"}},
      {{1125, 2436},
       {"iPhone 13 Mini, iPhone 12 Mini @18", "iPhone 11 Pro, iPhone XS @18", "iPhone X @17",
        "iPhone 15 Pro Max zoomed, iPhone 15 Plus zoomed, iPhone 14 Pro Max zoomed @18 zoomed",
        "iPhone 14 Plus zoomed, iPhone 13 Pro Max zoomed, iPhone 12 Pro Max zoomed @18 zoomed",
        "iPhone 11 Pro Max zoomed, iPhone XS Max zoomed @18 zoomed"}},
      {{1206, 2622}, {"iPhone 16 Pro @18 unmeasured"}},
      {{640, 960}, {"iPhone 4s, iPhone 4 @18 unmeasured"}},
      {{1334, 750}, {}},
      {{0, 0}, {}},
  };
  for (const Case& each : cases)
    EXPECT_EQ(origins(fifteenPro, each.size), each.expected) << each.size.width;
}

TEST(ScreenshotPhones, origins_beginWithThePresentPhoneAndKeepItsAppearance) {
  EXPECT_EQ(origins(fifteenPro, {960, 2079}).front(),
            "iPhone 15 Pro zoomed, iPhone 15 zoomed, iPhone 14 Pro zoomed @18 zoomed");
  const PhoneChoice odd{.identifier = "iPhone14,1", // an iPhone 13 of another identifier
                        .os = {17, 4, 1},
                        .zoomed = true,
                        .appearance = AppearanceChoice::dark};
  const auto found = screenshotOrigins(host::phoneModels(), odd, {1170, 2532});
  ASSERT_FALSE(found.empty());
  EXPECT_EQ(found.front().choice, (PhoneChoice{.identifier = "iPhone14,1",
                                               .os = {17, 4, 1},
                                               .zoomed = false,
                                               .appearance = AppearanceChoice::dark}));
}

class IncomingScreenshotsTest : public testing::Test {
 protected:
  IncomingScreenshotsTest() {
    phone.use(platform);
    phone.models = host::phoneModels();
  }

  Platform platform = test::unimplementedPlatform();
  test::FakePhone phone;
  std::vector<std::pair<InterfaceStyle, std::int32_t>> handed; ///< appearance and width
  std::string name;                                            ///< of the device at the last one
  IncomingScreenshots incoming{platform, [this](InterfaceStyle style, const Image& image) {
                                 handed.emplace_back(style, image.size().width);
                                 name = deviceName(platform);
                               }};
  const Image own = test::positionImage(1179, 2556);
  const Image small = test::positionImage(750, 1334);
};

using Handed = std::vector<std::pair<InterfaceStyle, std::int32_t>>;

TEST_F(IncomingScreenshotsTest, ownAndUnknownSizes_areHandedOnAtOnce) {
  incoming.receive(lightStyle, own);
  incoming.receive(darkStyle, test::positionImage(300, 200));
  EXPECT_FALSE(incoming.isAsking());
  EXPECT_EQ(handed, (Handed{{lightStyle, 1179}, {darkStyle, 300}}));
  phone.choice = {.identifier = "iPad8,9", .os = {18, 0, 0}};
  incoming.receive(lightStyle, own); // the screen, not the name, is what counts
  EXPECT_EQ(handed.size(), 3U);
}

TEST_F(IncomingScreenshotsTest, pick_isAskedOnceAndHoldsBeforeTheyAreHandedOn) {
  deviceName(platform);
  int changes = 0;
  const Subscription view = incoming.onChange([&] { ++changes; });
  incoming.receive(lightStyle, small);
  incoming.receive(darkStyle, test::positionImage(828, 1792));
  EXPECT_TRUE(incoming.isAsking());
  EXPECT_EQ(incoming.size(), (PixelSize{750, 1334}));
  EXPECT_EQ(changes, 1);
  EXPECT_TRUE(handed.empty());
  EXPECT_TRUE(incoming.pick(9));
  EXPECT_TRUE(incoming.isAsking()) << "there are only two";
  EXPECT_TRUE(incoming.pick(0));
  EXPECT_EQ(handed, (Handed{{lightStyle, 750}, {darkStyle, 828}}));
  EXPECT_EQ(phone.choice.identifier, "iPhone14,6");
  EXPECT_EQ(name, "iPhone SE (3rd generation)");
  EXPECT_FALSE(incoming.isAsking());
  EXPECT_EQ(changes, 2);
  incoming.receive(lightStyle, small);
  EXPECT_FALSE(incoming.isAsking()) << "it is the phone's own now";
}

TEST_F(IncomingScreenshotsTest, pick_thatCannotBeKeptHoldsForNow) {
  phone.full = true;
  incoming.receive(lightStyle, small);
  EXPECT_FALSE(incoming.pick(1));
  EXPECT_EQ(name, "iPhone 8");
  EXPECT_LT(phone.choice.os, firstOs18) << "no iPhone 8 ever had that";
  EXPECT_EQ(handed.size(), 1U);
}

TEST_F(IncomingScreenshotsTest, keepAndCancel_leaveThePhone) {
  incoming.receive(darkStyle, small);
  incoming.keep();
  EXPECT_EQ(handed, (Handed{{darkStyle, 750}}));
  incoming.receive(lightStyle, small);
  incoming.cancel();
  incoming.keep();
  EXPECT_EQ(handed.size(), 1U);
  EXPECT_FALSE(incoming.isAsking());
  EXPECT_EQ(phone.choice.identifier, "iPhone16,1");
}

} // namespace
} // namespace vitrelle
