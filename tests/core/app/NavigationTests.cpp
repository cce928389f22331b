#include "core/app/Navigation.h"

#include <gtest/gtest.h>

namespace vitrelle {
namespace {

TEST(Navigation, screens_standOnOneAnotherAboveTheRoot) {
  Navigation navigation;
  int changes = 0;
  const Subscription view = navigation.onChange([&] { ++changes; });
  navigation.back();
  navigation.open(Navigation::root);
  ASSERT_EQ(navigation.screens().size(), 1U) << "the root is neither left nor opened again";
  EXPECT_EQ(changes, 0);

  navigation.open(Navigation::changeStyle, StyleNumber{3});
  const OpenScreen first = navigation.screens().back();
  EXPECT_EQ(first.name, "ModernChangeLightDark");
  EXPECT_EQ(first.style, StyleNumber{3});
  navigation.back();
  navigation.open(Navigation::changeStyle, StyleNumber{3});
  EXPECT_NE(navigation.screens().back(), first) << "opened anew, it is another";
  EXPECT_EQ(navigation.screens().front().name, Navigation::root);
  EXPECT_EQ(changes, 3);
}

TEST(Navigation, reveal_goesBackToWhatIsOpen) {
  Navigation navigation;
  int changes = 0;
  const Subscription view = navigation.onChange([&] { ++changes; });
  navigation.reveal("PhoneSettingsView");
  const OpenScreen settings = navigation.screens().back();
  navigation.reveal("PhoneSettingsView");
  EXPECT_EQ(changes, 1);
  navigation.open("LocationSettingsView");
  navigation.reveal("PhoneSettingsView");
  EXPECT_EQ(navigation.screens().size(), 2U);
  EXPECT_EQ(navigation.screens().back(), settings) << "the same, as it was left";
  navigation.reveal(Navigation::root);
  EXPECT_EQ(navigation.screens().size(), 1U);
}

} // namespace
} // namespace vitrelle
