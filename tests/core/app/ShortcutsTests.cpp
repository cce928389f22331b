#include "core/app/Shortcuts.h"

#include "tests/core/app/AppTest.h"

#include <limits>

namespace vitrelle {
namespace {

using Intent = ChangeVitrelleConfigIntent;
using ShortcutsTest = test::AppTest;

TEST_F(ShortcutsTest, options_nameTheStylesFromOne) {
  setNumber("amountOfConfigs", 3);
  EXPECT_EQ(ViewStringOptionsProvider(platform).results(),
            (std::vector<std::string>{"Style 1", "Style 2", "Style 3"}));
  setNumber("amountOfConfigs", std::numeric_limits<std::int64_t>::max());
  EXPECT_EQ(ViewStringOptionsProvider(platform).results().size(), 100U) << "a damaged count";
}

TEST_F(ShortcutsTest, anyText_choosesAStyleUnchecked) {
  const std::pair<const char*, std::int64_t> cases[] = {
      {"Style 2", 1},
      {"2", 1},
      {"Style 99", 98},
      {"Style +3", 2},
      {"Style -3", -4},
      {"Style x", -1},
      {"", -1},
      {"Style  2", -1},
      {"Style Style 4", 3},
      {"style 2", -1},
      {"Style +-2", -1},
      {"2 ", -1},
      {"Style 9223372036854775808", -1},
      {"Style -9223372036854775808", -1},
      {"Style 9223372036854775807", 9223372036854775806}};
  for (const auto& [text, number] : cases) {
    const auto outcome = Intent(platform).perform(text);
    EXPECT_EQ(std::get<Intent::Done>(outcome).value, "Success") << text;
    EXPECT_EQ(this->number("selectedConfig"), number) << text;
  }
  EXPECT_EQ(console.reloads, static_cast<int>(std::size(cases)));
}

TEST_F(ShortcutsTest, noText_asksForOneAndDoesNothing) {
  const auto outcome = Intent(platform).perform(std::nullopt);
  EXPECT_EQ(std::get<Intent::NeedsValue>(outcome).dialog, "What Style would you like to use?");
  EXPECT_EQ(number("selectedConfig"), std::nullopt);
  EXPECT_EQ(console.reloads, 0);
}

using ShortcutsDeathTest = ShortcutsTest;

TEST_F(ShortcutsDeathTest, optionsWithoutStyles_areFatal) {
  EXPECT_DEATH((void)ViewStringOptionsProvider(platform).results(), "no style");
  setNumber("amountOfConfigs", 0);
  EXPECT_DEATH((void)ViewStringOptionsProvider(platform).results(), "no style");
}

} // namespace
} // namespace vitrelle
