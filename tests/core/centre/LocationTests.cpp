#include "core/centre/LocationQuestion.h"
#include "core/centre/LocationSettingsView.h"

#include "tests/core/app/AppTest.h"

namespace vitrelle {
namespace {

using enum AuthorizationStatus;

class LocationTest : public test::AppTest {
 protected:
  LocationChoice& choice = location.choice;
};

const City kyoto{"Kyoto", "Japan", {35.02, 135.75}};

TEST_F(LocationTest, question_isAskedUntilItIsAnswered) {
  LocationQuestion question(platform);
  question.ask();
  EXPECT_TRUE(question.shown());
  question.dismiss();
  EXPECT_EQ(choice.permission, notDetermined);
  question.deny();
  EXPECT_EQ(choice.permission, notDetermined) << "a question that is not shown has no answer";
  question.ask();
  question.allow();
  EXPECT_FALSE(question.shown());
  EXPECT_EQ(choice.permission, authorizedWhenInUse);
  choice.permission = denied;
  question.ask();
  EXPECT_FALSE(question.shown()) << "whoever has answered is left alone";
}

TEST_F(LocationTest, question_thatCannotBeKeptGoesAway) {
  location.full = true;
  LocationQuestion question(platform);
  question.ask();
  question.allow();
  EXPECT_FALSE(question.shown());
  EXPECT_TRUE(printed("location: the disk is full"));
}

TEST_F(LocationTest, town_isSearchedAsItIsTypedAndPicked) {
  LocationSettingsView settings(platform);
  settings.search("kyo");
  settings.search("kyot");
  EXPECT_EQ(geocoder.searched.questions(), std::vector<std::string>{"kyot"})
      << "the answer to the words before is not waited for";
  geocoder.searched.answer(std::vector<City>{{"Kyotango", "Japan", {35.6, 135.1}}, kyoto});
  settings.pick(7);
  EXPECT_FALSE(choice.city);
  settings.pick(1);
  EXPECT_EQ(choice, (LocationChoice{authorizedWhenInUse, LocationSource::place, kyoto}));
  EXPECT_TRUE(settings.found().empty());
  EXPECT_EQ(settings.words(), "");

  settings.search("xyzzy");
  geocoder.searched.answer(std::vector<City>());
  EXPECT_TRUE(settings.isUnknown());
  settings.search("  ");
  EXPECT_FALSE(settings.isUnknown());
  EXPECT_TRUE(geocoder.searched.questions().empty());
  settings.search("x");
  geocoder.searched.answer(Failure{"cities.txt", "it is not there"});
  EXPECT_EQ(settings.trouble()->why, "it is not there");
}

TEST_F(LocationTest, settings_followWhatIsKnownOfTheDesktop) {
  bool hasService = true;
  platform.locationSettings.hasDesktopService = [&] { return hasService; };
  LocationSettingsView settings(platform);
  int changes = 0;
  const Subscription view = settings.onChange([&] { ++changes; });
  EXPECT_TRUE(settings.hasDesktopService());
  hasService = false;
  location.authorize(choice.permission); // as those are told who watch the choice
  EXPECT_EQ(changes, 1);
  EXPECT_FALSE(settings.hasDesktopService());
}

TEST_F(LocationTest, settings_holdAtOnceAndFollowOtherWriters) {
  LocationSettingsView settings(platform);
  settings.setPermission(denied);
  settings.setSource(LocationSource::none);
  EXPECT_EQ(choice, (LocationChoice{denied, LocationSource::none, {}}));
  settings.search("kyoto");
  geocoder.searched.answer(std::vector<City>{kyoto});
  settings.pick(0);
  EXPECT_EQ(choice.permission, denied) << "who has said no, has said it";
  settings.setSource(LocationSource::desktop);
  EXPECT_EQ(choice.city, kyoto) << "for the way back";

  ASSERT_TRUE(platform.locationSettings.save({.permission = authorizedAlways}));
  EXPECT_EQ(settings.choice().permission, authorizedAlways);
  location.full = true;
  settings.setPermission(denied);
  EXPECT_EQ(settings.choice().permission, denied) << "until the program ends";
  EXPECT_EQ(settings.trouble()->why, "the disk is full");
}

} // namespace
} // namespace vitrelle
