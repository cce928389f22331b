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

} // namespace
} // namespace vitrelle
