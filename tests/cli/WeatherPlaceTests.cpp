// Whose weather a command fetches that ends at once, where the desktop tells the place.
#include "tests/cli/Program.h"
#include "tests/host/location/FakeGeoClue.h"
#include "tests/support/PrivateBus.h"

#include <QCoreApplication>
#include <QElapsedTimer>

#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include <filesystem>
#include <fstream>
#include <string>

namespace vitrelle {
namespace {

using Json = nlohmann::json;

class WeatherPlaceTest : public test::ProgramTest {
 protected:
  WeatherPlaceTest() {
    std::filesystem::create_directory(home());
    settle("authorizedWhenInUse");
  }

  void settle(const std::string& permission) {
    std::ofstream(home() + "/location") << "permission=" << permission << "\n";
  }
  /// The latitude for which the service was asked that is not there.
  Json latitude() {
    const test::Outcome fetched = run({"weather", "fetch", "--weather-url", "http://127.0.0.1:9/"},
                                      {{"DBUS_SYSTEM_BUS_ADDRESS", bus.address().toStdString()},
                                       {"XDG_DATA_HOME", folder.string()}});
    EXPECT_EQ(fetched.status, 1) << fetched.complaints;
    return Json::parse(run({"weather", "--json"}).output).at("lastLat");
  }

  test::PrivateBus bus;
};

TEST_F(WeatherPlaceTest, position_isWaitedForWhereItMayBeKnown) {
  test::FakeGeoClue service(bus.connect(QStringLiteral("service")));
  service.start();
  service.move(52.5, 13.4);
  settle("denied");
  EXPECT_TRUE(latitude().is_null());
  settle("authorizedWhenInUse");
  EXPECT_EQ(latitude(), 52.5);
}

TEST_F(WeatherPlaceTest, desktopThatTellsNothing_isNotWaitedForLong) {
  QElapsedTimer timer;
  timer.start();
  EXPECT_TRUE(latitude().is_null()) << "no service";
  EXPECT_LT(timer.restart(), 2500) << "there is nothing to wait for";
  bus.suspend();
  EXPECT_TRUE(latitude().is_null());
  EXPECT_LT(timer.elapsed(), 10'000);
  bus.resume();
}

} // namespace
} // namespace vitrelle

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  const QCoreApplication application(argc, argv);
  return RUN_ALL_TESTS();
}
