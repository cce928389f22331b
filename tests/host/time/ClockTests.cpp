#include "host/time/Clock.h"

#include "tests/support/Environment.h"

#include <gtest/gtest.h>

#include <chrono>
#include <cmath>
#include <limits>
#include <thread>

namespace vitrelle::host {
namespace {

using namespace std::chrono;

/// A moment of UTC.
Date at(year_month_day date, int hour = 0, int minute = 0, double second = 0) {
  constexpr sys_days reference = 2001y / January / 1;
  const double midnight = duration<double>(sys_days(date) - reference).count();
  return {midnight + 3600 * hour + 60 * minute + second};
}

class ClockTest : public testing::Test {
 protected:
  const test::Environment zone{"TZ", "UTC"};
  const DateTime clock = makeClock(std::nullopt);
};

TEST_F(ClockTest, now_goesOnUnlessItWasTold) {
  const double early = clock.now().secondsSinceReferenceDate;
  std::this_thread::sleep_for(20ms);
  const double late = clock.now().secondsSinceReferenceDate;
  EXPECT_GT(late, early);
  EXPECT_LT(late, early + 10);
  const auto seconds = duration<double>(system_clock::now() - sys_days(2001y / January / 1));
  EXPECT_NEAR(late, seconds.count(), 10);

  const Date told = at(2026y / November / 21, 13, 30);
  const DateTime still = makeClock(told);
  EXPECT_EQ(still.now(), told);
  EXPECT_EQ(still.startOfDay(told), at(2026y / November / 21));
}

TEST_F(ClockTest, days_beginWithTheirFirstMoment) {
  const struct {
    const char* zone;
    Date moment;
    Date start;
  } cases[] = {
      {"UTC", at(2026y / November / 21, 23, 59, 59.75), at(2026y / November / 21)},
      {"UTC", at(2026y / November / 21), at(2026y / November / 21)},
      {"UTC", at(1969y / July / 20, 20, 17), at(1969y / July / 20)},
      {"America/New_York", at(2026y / November / 21, 2), at(2026y / November / 20, 5)},
      {"Asia/Kathmandu", at(2026y / November / 21, 18, 15), at(2026y / November / 21, 18, 15)},
      {"Asia/Kathmandu", at(2026y / November / 21, 18, 14, 59), at(2026y / November / 20, 18, 15)},
      // of 23 hours and of 25
      {"Europe/Berlin", at(2026y / March / 29, 21, 59), at(2026y / March / 28, 23)},
      {"Europe/Berlin", at(2026y / March / 29, 22), at(2026y / March / 29, 22)},
      {"Europe/Berlin", at(2026y / October / 25, 22, 59), at(2026y / October / 24, 22)},
      {"Europe/Berlin", at(2026y / October / 25, 23), at(2026y / October / 25, 23)},
      // without midnight: from 23:59:59 clocks go to 01:00
      {"America/Havana", at(2024y / March / 10, 5), at(2024y / March / 10, 5)},
      {"America/Havana", at(2024y / March / 10, 20), at(2024y / March / 10, 5)},
      {"America/Havana", at(2024y / March / 10, 4, 59, 59), at(2024y / March / 9, 5)},
      {"Asia/Beirut", at(2024y / March / 31, 12), at(2024y / March / 30, 22)},
      {"Africa/Cairo", at(2024y / April / 26, 12), at(2024y / April / 25, 22)},
      // with two of them, or with the hour before it twice
      {"America/Havana", at(2024y / November / 3, 4, 30), at(2024y / November / 3, 4)},
      {"America/Havana", at(2024y / November / 3, 20), at(2024y / November / 3, 4)},
      {"Asia/Beirut", at(2024y / October / 26, 21, 30), at(2024y / October / 25, 21)},
      {"Asia/Beirut", at(2024y / October / 26, 22), at(2024y / October / 26, 22)},
      // the day before was left out
      {"Pacific/Apia", at(2011y / December / 30, 12), at(2011y / December / 30, 10)},
      {"Pacific/Apia", at(2011y / December / 30, 9), at(2011y / December / 29, 10)},
  };
  for (const auto& one : cases) {
    zone.set(one.zone);
    EXPECT_EQ(clock.startOfDay(one.moment).secondsSinceReferenceDate,
              one.start.secondsSinceReferenceDate)
        << one.zone << " " << one.moment.secondsSinceReferenceDate;
  }
}

TEST_F(ClockTest, zone_isLookedUpEachTime) {
  const Date noon = at(2026y / July / 1, 12);
  const std::pair<const char*, double> cases[] = {{"Europe/Berlin", 2},
                                                  {":Europe/Berlin", 2},
                                                  {"/usr/share/zoneinfo/Europe/Berlin", 2},
                                                  {"Asia/Tokyo", 9},
                                                  {"XYZ3ZYX,M3.2.0,M11.1.0", -2}};
  for (const auto& [name, hours] : cases) {
    zone.set(name);
    EXPECT_EQ(secondsFromUtc(noon), 3600 * hours) << name;
  }
}

TEST_F(ClockTest, timesOnTheWall_areTheirFirstMoments) {
  zone.set("Europe/Berlin");
  EXPECT_EQ(firstMomentAt(at(2026y / November / 21, 13, 30)), at(2026y / November / 21, 12, 30));
  EXPECT_EQ(firstMomentAt(at(2026y / March / 29, 2, 30)), at(2026y / March / 29, 1)) << "left out";
  EXPECT_EQ(firstMomentAt(at(2026y / October / 25, 2, 30)), at(2026y / October / 25, 0, 30))
      << "twice";
  zone.set("Pacific/Kiritimati"); // nowhere are clocks farther ahead
  EXPECT_EQ(firstMomentAt(at(2026y / November / 21)), at(2026y / November / 20, 10));
}

TEST_F(ClockTest, momentsBeyondAllCalendars_haveADay) {
  zone.set("Asia/Tokyo");
  for (const double seconds : {1e15, -1e15, 1e300})
    EXPECT_LE(clock.startOfDay({seconds}).secondsSinceReferenceDate, seconds);
  EXPECT_TRUE(std::isnan(
      clock.startOfDay({std::numeric_limits<double>::quiet_NaN()}).secondsSinceReferenceDate));
}

} // namespace
} // namespace vitrelle::host
