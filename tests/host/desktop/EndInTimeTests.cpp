#include "host/desktop/EndInTime.h"

#include <gtest/gtest.h>

#include <chrono>
#include <cstdlib>
#include <thread>

namespace vitrelle::host {
namespace {

TEST(EndInTimeDeathTest, program_endsWithItsStatusWhateverHangs) {
  const auto hang = [] {
    endInTime(std::chrono::milliseconds(50), 3);
    std::thread([] { std::this_thread::sleep_for(std::chrono::minutes(10)); }).join();
  };
  EXPECT_EXIT(hang(), testing::ExitedWithCode(3), "");
}

TEST(EndInTimeDeathTest, programThatEndsSooner_isNotHeldUp) {
  const auto end = [] {
    endInTime(std::chrono::minutes(10), 3);
    std::exit(4);
  };
  EXPECT_EXIT(end(), testing::ExitedWithCode(4), "");
}

} // namespace
} // namespace vitrelle::host
