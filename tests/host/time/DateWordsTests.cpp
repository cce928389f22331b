#include "host/time/DateWords.h"

#include "tests/support/Environment.h"
#include "tests/support/UnimplementedPlatform.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>

namespace vitrelle::host {
namespace {

constexpr auto none = FormatterStyle::none;
constexpr auto shortForm = FormatterStyle::shortForm;
constexpr auto full = FormatterStyle::full;

class DateWordsTest : public testing::Test {
 protected:
  DateWordsTest() { useDateWords(platform); }

  std::string words(FormatterStyle date, FormatterStyle time) const {
    return platform.dateTime.text(moment, date, time);
  }

  const test::Environment zone{"TZ", "UTC"};
  const test::Environment all{"LC_ALL", nullptr};
  const test::Environment time{"LC_TIME", nullptr};
  const test::Environment lang{"LANG", nullptr};
  Platform platform = test::unimplementedPlatform();
  Date moment{816960600}; ///< 2026-11-21 13:30 in UTC
};

TEST_F(DateWordsTest, languages_writeTheTimeAndBothDates) {
  const struct {
    const char* locale;
    const char* time;
    const char* date;
    const char* fullDate;
  } cases[] = {
      {"en_US.UTF-8", "1:30\u202fPM", "11/21/26", "Saturday, November 21, 2026"},
      {"en_GB.UTF-8", "13:30", "21/11/2026", "Saturday, 21 November 2026"},
      {"de_DE.UTF-8@euro", "13:30", "21.11.26", "Samstag, 21. November 2026"},
      {"ar_EG.UTF-8", "١:٣٠ م", "٢١\u200f/١١\u200f/٢٠٢٦", "السبت، ٢١ نوفمبر ٢٠٢٦"},
      {"ja_JP.UTF-8", "13:30", "2026/11/21", "2026年11月21日土曜日"},
      {"th_TH.UTF-8", "13:30", "21/11/69", "วันเสาร์ที่ 21 พฤศจิกายน พ.ศ. 2569"},
      {"sr_RS.UTF-8@latin", "13:30", "21.11.26.", "subota, 21. novembar 2026."},
  };
  for (const auto& one : cases) {
    lang.set(one.locale);
    EXPECT_EQ(words(none, shortForm), one.time) << one.locale;
    EXPECT_EQ(words(shortForm, none), one.date) << one.locale;
    EXPECT_EQ(words(full, none), one.fullDate) << one.locale;
  }
}

TEST_F(DateWordsTest, everyStyle_hasItsLength) {
  lang.set("en_GB.UTF-8");
  zone.set("America/New_York");
  const std::pair<FormatterStyle, const char*> cases[] = {
      {shortForm, "21/11/2026, 08:30"},
      {FormatterStyle::medium, "21 Nov 2026, 08:30:00"},
      {FormatterStyle::longForm, "21 November 2026 at 08:30:00 GMT-5"},
      {full, "Saturday, 21 November 2026 at 08:30:00 Eastern Standard Time"},
      {none, ""}};
  for (const auto& [style, text] : cases)
    EXPECT_EQ(words(style, style), text);
}

TEST_F(DateWordsTest, locale_isTheFirstThatIsTold) {
  const struct {
    const char* all;
    const char* time;
    const char* lang;
    const char* date;
  } cases[] = {{"de_DE.UTF-8", "ja_JP.UTF-8", "en_GB.UTF-8", "21.11.26"},
               {"", "ja_JP.UTF-8", "en_GB.UTF-8", "2026/11/21"},
               {nullptr, "", "en_GB.UTF-8", "21/11/2026"},
               {nullptr, nullptr, "", "11/21/26"},
               {"C", "ja_JP.UTF-8", "en_GB.UTF-8", "11/21/26"},
               {nullptr, "POSIX", "de_DE", "11/21/26"},
               {nullptr, nullptr, "C.UTF-8", "11/21/26"},
               {nullptr, nullptr, "xx_DE.UTF-8", "11/21/26"},
               {nullptr, nullptr, "/../../\xff", "11/21/26"},
               {nullptr, nullptr, "de", "21.11.26"},
               {nullptr, nullptr, "de_CH.ISO-8859-1", "21.11.26"}};
  for (const auto& one : cases) {
    all.set(one.all);
    time.set(one.time);
    lang.set(one.lang);
    EXPECT_EQ(words(shortForm, none), one.date) << one.date;
  }
}

TEST_F(DateWordsTest, zone_isLookedUpEachTime) {
  lang.set("en_GB.UTF-8");
  const std::pair<const char*, const char*> cases[] = {{"America/New_York", "08:30"},
                                                       {":Europe/Berlin", "14:30"},
                                                       {"Asia/Kathmandu", "19:15"},
                                                       {"UTC", "13:30"},
                                                       {"", "13:30"},
                                                       {"XYZ3ZYX,M3.2.0,M11.1.0", "10:30"},
                                                       {"<+0123>-1:23", "14:53"},
                                                       {"Nowhere/AtAll", "13:30"}};
  for (const auto& [name, text] : cases) {
    zone.set(name);
    EXPECT_EQ(words(none, shortForm), text) << name;
  }
}

TEST_F(DateWordsTest, changesOfTheClocks_areFollowed) {
  lang.set("en_GB.UTF-8");
  const struct {
    const char* zone;
    double moment;
    const char* before; ///< a second earlier
    const char* then;
  } cases[] = {{"Europe/Berlin", 796438800, "29/03/2026, 01:59", "29/03/2026, 03:00"},
               {"Europe/Berlin", 814582800, "25/10/2026, 02:59", "25/10/2026, 02:00"},
               {"XYZ3ZYX,M3.2.0,M11.1.0", 794638800, "08/03/2026, 01:59", "08/03/2026, 03:00"},
               {"America/Havana", 731739600, "09/03/2024, 23:59", "10/03/2024, 01:00"}};
  for (const auto& one : cases) {
    zone.set(one.zone);
    moment = {one.moment - 1};
    EXPECT_EQ(words(shortForm, shortForm), one.before) << one.zone;
    moment = {one.moment};
    EXPECT_EQ(words(shortForm, shortForm), one.then) << one.zone;
  }
}

} // namespace
} // namespace vitrelle::host
