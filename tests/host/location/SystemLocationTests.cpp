// The user's choice, and what follows from it.
#include "host/location/SystemLocation.h"

#include "host/desktop/PollLoop.h"
#include "host/location/KeptChoice.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace vitrelle::host {
namespace {

namespace fs = std::filesystem;

constexpr auto undetermined = AuthorizationStatus::notDetermined;
constexpr auto restricted = AuthorizationStatus::restricted;
constexpr auto denied = AuthorizationStatus::denied;
constexpr auto inUse = AuthorizationStatus::authorizedWhenInUse;
constexpr auto always = AuthorizationStatus::authorizedAlways;

const City berlin{"Berlin", "Germany", {52.52437, 13.41053}};
const City suva{"Suva", "Fiji", {-18.14161, 178.44149}};

class SystemLocationTest : public testing::Test {
 protected:
  using Positions = std::vector<Coordinate>;

  SystemLocationTest() {
    std::string pattern = (fs::temp_directory_path() / "system locationXXXXXX").string();
    folder = mkdtemp(pattern.data());
    own = made();
  }
  ~SystemLocationTest() override { fs::remove_all(folder); }

  HomeFolder home() const { return HomeFolder(folder / "home"); }
  LocationOperations made() {
    return makeLocation({.home = home(),
                         .lookForService =
                             [this](std::function<void(bool)> done) {
                               ++questions;
                               if (hasService) done(*hasService);
                               known = std::move(done);
                               return Subscription([this] { known = nullptr; });
                             },
                         .follow = [this](auto onPosition) { return desktop.add(onPosition); },
                         .pages = {.ask = [this] { ++asked; }}});
  }
  Subscription update(Positions& told) const {
    return own.location.startUpdatingLocation([&told](const Positions& positions) {
      told.insert(told.end(), positions.begin(), positions.end());
    });
  }
  void save(const LocationChoice& choice) const { EXPECT_TRUE(own.settings.save(choice)); }

  fs::path folder;
  std::optional<bool> hasService = true; ///< none while the bus has not answered
  std::function<void(bool)> known;       ///< its answer
  int questions = 0;
  int asked = 0;
  Subscribers<const Coordinate&> desktop;
  LocationOperations own;
};

TEST_F(SystemLocationTest, status_isTheChoiceWhereThereIsASource) {
  EXPECT_EQ(questions, 0) << "nothing is asked before it matters";
  const std::tuple<LocationSource, bool, AuthorizationStatus, AuthorizationStatus> cases[] = {
      {LocationSource::desktop, true, undetermined, undetermined},
      {LocationSource::desktop, true, denied, denied},
      {LocationSource::desktop, true, always, always},
      {LocationSource::desktop, false, undetermined, restricted},
      {LocationSource::desktop, false, inUse, restricted},
      {LocationSource::place, false, undetermined, undetermined},
      {LocationSource::place, true, inUse, inUse},
      {LocationSource::none, true, inUse, restricted}};
  for (const auto& [source, service, permission, status] : cases) {
    hasService = service;
    own = made();
    save({permission, source, std::nullopt});
    EXPECT_EQ(own.location.authorizationStatus(), status)
        << static_cast<int>(source) << service << static_cast<int>(permission);
    EXPECT_EQ(own.settings.hasDesktopService(), service);
  }
  questions = 0;
  own = made();
  save({inUse, LocationSource::none});
  own.location.authorizationStatus();
  EXPECT_EQ(questions, 0) << "it does not matter";
  save({inUse, LocationSource::desktop});
  own.location.authorizationStatus();
  own.location.authorizationStatus();
  EXPECT_EQ(questions, 1);
}

TEST_F(SystemLocationTest, watchers_hearOfEachOtherStatusAndChoiceOnce) {
  std::vector<AuthorizationStatus> statuses;
  std::vector<LocationSource> choices;
  const Subscription status =
      own.location.watchAuthorization([&](AuthorizationStatus now) { statuses.push_back(now); });
  Subscription choice =
      own.settings.watch([&](const LocationChoice& now) { choices.push_back(now.source); });
  save({undetermined, LocationSource::desktop});
  save({undetermined, LocationSource::place, berlin});
  save({inUse, LocationSource::place, berlin});
  save({inUse, LocationSource::place, berlin});
  choice.cancel();
  save({inUse, LocationSource::none, berlin});
  EXPECT_EQ(statuses, (std::vector{undetermined, inUse, restricted}));
  EXPECT_EQ(choices,
            (std::vector{LocationSource::desktop, LocationSource::place, LocationSource::place}));
}

TEST_F(SystemLocationTest, user_isAskedOnceWhileNothingIsSettled) {
  own.location.requestWhenInUseAuthorization();
  own.location.requestWhenInUseAuthorization();
  EXPECT_EQ(asked, 1);
  save({denied, LocationSource::desktop});
  own.location.requestWhenInUseAuthorization();
  EXPECT_EQ(asked, 1);
  save({undetermined, LocationSource::none});
  own.location.requestWhenInUseAuthorization();
  EXPECT_EQ(asked, 1) << "he could allow nothing";
  save({undetermined, LocationSource::place, berlin});
  own.location.requestWhenInUseAuthorization();
  EXPECT_EQ(asked, 2) << "he has taken it back";
  makeLocation({.home = home(), .lookForService = {}, .follow = {}})
      .location.requestWhenInUseAuthorization(); // without anybody to ask him
}

TEST_F(SystemLocationTest, serviceThatIsLookedFor_isTakenForThereUntilItIsKnown) {
  for (const bool isThere : {true, false}) {
    hasService.reset();
    asked = 0;
    own = made();
    save({inUse, LocationSource::place, berlin});
    EXPECT_FALSE(known) << "it does not matter yet";
    save({inUse, LocationSource::desktop});
    std::vector<AuthorizationStatus> statuses;
    const Subscription status =
        own.location.watchAuthorization([&](AuthorizationStatus now) { statuses.push_back(now); });
    int choices = 0;
    const Subscription choice = own.settings.watch([&](const LocationChoice&) { ++choices; });
    Positions told;
    const Subscription updates = update(told);
    EXPECT_TRUE(own.settings.hasDesktopService());
    EXPECT_TRUE(desktop.empty()) << "there may be nothing to follow";
    ASSERT_TRUE(known);
    known(isThere);
    EXPECT_EQ(statuses, isThere ? std::vector{inUse} : (std::vector{inUse, restricted}));
    EXPECT_EQ(choices, 2) << "by which its readers know that it is known";
    EXPECT_EQ(own.settings.hasDesktopService(), isThere);
    EXPECT_EQ(desktop.empty(), !isThere);
  }
}

TEST_F(SystemLocationTest, user_isAskedOnceTheServiceIsKnown) {
  for (const bool isThere : {true, false}) {
    hasService.reset();
    asked = 0;
    own = made();
    own.location.requestWhenInUseAuthorization();
    own.location.requestWhenInUseAuthorization();
    EXPECT_EQ(asked, 0) << "he might be able to allow nothing";
    known(isThere);
    EXPECT_EQ(asked, isThere ? 1 : 0);
  }
  hasService.reset();
  own = made();
  own.location.requestWhenInUseAuthorization();
  save({denied, LocationSource::desktop});
  asked = 0;
  known(true);
  EXPECT_EQ(asked, 0) << "he has answered since";
}

TEST_F(SystemLocationTest, place_isToldAtOnceWhenItMayBe) {
  save({undetermined, LocationSource::place, berlin});
  Positions told;
  const Subscription updates = update(told);
  EXPECT_EQ(told, Positions());
  save({inUse, LocationSource::place, berlin});
  EXPECT_EQ(told, Positions{berlin.position});
  save({always, LocationSource::place, berlin});
  save({always, LocationSource::place, suva});
  save({denied, LocationSource::place, berlin});
  save({inUse, LocationSource::place});
  EXPECT_EQ(told, (Positions{berlin.position, suva.position}));
  save({inUse, LocationSource::place, suva});
  Positions other;
  const Subscription second = update(other);
  EXPECT_EQ(other, Positions{suva.position});
  EXPECT_TRUE(desktop.empty());
}

TEST_F(SystemLocationTest, desktop_isFollowedWhileSomebodyMayBeTold) {
  Positions told;
  Subscription updates = update(told);
  EXPECT_TRUE(desktop.empty());
  save({inUse, LocationSource::desktop});
  ASSERT_FALSE(desktop.empty());
  desktop.notify({1, 2});
  desktop.notify({3, 4});
  Positions other;
  Subscription second = update(other);
  EXPECT_EQ(other, (Positions{{3, 4}})) << "the last known one";
  updates.cancel();
  EXPECT_FALSE(desktop.empty());
  desktop.notify({5, 6});
  EXPECT_EQ(told, (Positions{{1, 2}, {3, 4}}));
  EXPECT_EQ(other, (Positions{{3, 4}, {5, 6}}));
  second.cancel();
  EXPECT_TRUE(desktop.empty());

  second = update(other);
  EXPECT_EQ(other.back(), (Coordinate{5, 6}));
  save({denied, LocationSource::desktop});
  EXPECT_TRUE(desktop.empty());
  save({inUse, LocationSource::desktop});
  EXPECT_FALSE(desktop.empty());
  Positions third;
  const Subscription last = update(third);
  EXPECT_EQ(third, Positions()) << "what was taken back is forgotten";
  own = made();
  EXPECT_TRUE(desktop.empty());
}

TEST_F(SystemLocationTest, subscriberMayEndItselfOrTurnItOff) {
  save({inUse, LocationSource::desktop});
  int calls = 0;
  Subscription updates = own.location.startUpdatingLocation([&](const Positions&) {
    ++calls;
    updates.cancel();
  });
  Positions told;
  Subscription second = own.location.startUpdatingLocation([&](const Positions& positions) {
    told = positions;
    save({denied, LocationSource::desktop});
  });
  desktop.notify({1, 2});
  EXPECT_TRUE(desktop.empty());
  EXPECT_EQ(calls, 1);
  EXPECT_EQ(told, (Positions{{1, 2}}));
  own = {};
  second.cancel(); // after all that it was about
}

TEST_F(SystemLocationTest, choice_isKeptForLaterPrograms) {
  const LocationChoice choices[] = {
      {},
      {denied, LocationSource::none},
      {always, LocationSource::place, suva},
      {inUse, LocationSource::desktop, City{"=\"x\" =", "", {-90, 180}}},
      {inUse, LocationSource::place, City{"Aïn", "’", {1e-7, 0.1}}}};
  for (const LocationChoice& choice : choices) {
    save(choice);
    EXPECT_EQ(own.settings.current(), choice);
    EXPECT_EQ(made().settings.current(), choice);
  }
  save({inUse, LocationSource::place, City{"two\nsource=none", "x", {1, 2}}});
  EXPECT_EQ(made().settings.current().city->name, "two source=none");
  EXPECT_FALSE(own.settings.save({restricted}));
  EXPECT_EQ(own.settings.current().permission, inUse);
  const auto permissions = fs::status(home().locationFile()).permissions();
  EXPECT_EQ(permissions & (fs::perms::group_all | fs::perms::others_all), fs::perms::none);
}

TEST_F(SystemLocationTest, garbledFile_isAsNothingSettled) {
  fs::create_directories(folder / "home");
  const std::pair<const char*, LocationChoice> cases[] = {
      {"", {}},
      {"\0\xff=\n==\n\n", {}},
      {"permission=restricted\nsource=moon\n", {}},
      {"permission=\nsource=place", {undetermined, LocationSource::place}},
      {"latitude=91\nlongitude=2\ncity=x\n", {}},
      {"latitude=nan\nlongitude=2\ncity=x\n", {}},
      {"latitude=1\ncity=x\n", {}},
      {"latitude=1\nlongitude=2\ncountry=y\n", {}},
      {"permission=denied\nlatitude=1\nlongitude=2x\ncity=x\n", {denied}}};
  for (const auto& [text, choice] : cases) {
    std::ofstream(home().locationFile()) << text;
    EXPECT_EQ(keptChoice(home()), choice) << text;
  }
}

TEST_F(SystemLocationTest, choiceThatCantBeKept_holdsForThisProgram) {
  std::ofstream(folder / "home") << "a file in its way";
  int calls = 0;
  const Subscription watch = own.settings.watch([&](const LocationChoice&) { ++calls; });
  EXPECT_FALSE(own.settings.save({inUse, LocationSource::place, berlin}));
  EXPECT_EQ(own.location.authorizationStatus(), inUse);
  EXPECT_EQ(calls, 2);
  EXPECT_EQ(made().settings.current(), LocationChoice());
}

TEST_F(SystemLocationTest, toldPosition_standsWhateverIsSettled) {
  PollLoop loop;
  const HostOptions options{.home = home(), .phone = {}, .location = Coordinate{1, 2}};
  Platform platform = makePlatform(options, loop.operations());
  int opened = 0;
  useLocation(platform, options, loop.operations(),
              {.ask = [this] { ++asked; }, .openSettings = [&] { ++opened; }});
  EXPECT_TRUE(platform.locationSettings.save({denied, LocationSource::place, berlin}));
  EXPECT_EQ(platform.location.authorizationStatus(), inUse);
  Positions told;
  const Subscription updates = platform.location.startUpdatingLocation(
      [&](const Positions& positions) { told = positions; });
  EXPECT_EQ(told, (Positions{{1, 2}}));
  platform.location.requestWhenInUseAuthorization();
  EXPECT_EQ(asked, 0);
  platform.location.openSettings();
  EXPECT_EQ(opened, 1);
  EXPECT_EQ(made().settings.current().city, berlin);
}

} // namespace
} // namespace vitrelle::host
