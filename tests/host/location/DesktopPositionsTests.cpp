// The desktop's location service over a bus that this process takes for the system's.
#include "host/location/DesktopPositions.h"

#include "core/platform/Platform.h"
#include "host/desktop/QtLoop.h"
#include "host/location/SystemLocation.h"
#include "tests/host/location/FakeGeoClue.h"
#include "tests/support/MockedService.h"
#include "tests/support/PrivateBus.h"
#include "tests/support/UnimplementedPlatform.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QTest>

#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <vector>

namespace vitrelle::host {
namespace {

constexpr std::chrono::seconds patience(10); // a busy machine is slow

/// The system's bus, as far as this process knows, and where the library keeps its own files.
class World final : public testing::Environment {
 public:
  void SetUp() override {
    bus = std::make_unique<test::PrivateBus>();
    folder = std::make_unique<QTemporaryDir>();
    qputenv("DBUS_SYSTEM_BUS_ADDRESS", bus->address().toUtf8());
    qputenv("XDG_DATA_HOME", folder->path().toUtf8());
    // A warning would be a line on the program's stderr.
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString& text) {
      ADD_FAILURE() << "said: " << text.toStdString();
    });
  }
  void TearDown() override {
    qInstallMessageHandler(nullptr);
    bus.reset();
  }

  std::unique_ptr<test::PrivateBus> bus;
  std::unique_ptr<QTemporaryDir> folder;
};

World* world = nullptr;

class DesktopPositionsTest : public testing::Test {
 protected:
  DesktopPositionsTest() {
    QFile::remove(world->folder->filePath(QStringLiteral("qtposition-geoclue2")));
  }

  Subscription follow() {
    return followDesktop(makeQtLoop(),
                         [this](const Coordinate& position) { told.push_back(position); });
  }
  bool tells(const std::vector<Coordinate>& positions) {
    const bool came = QTest::qWaitFor([&] { return told.size() >= positions.size(); });
    QTest::qWait(20); // nothing more
    return came && told == positions;
  }
  bool becomesStarted(bool started) {
    return QTest::qWaitFor([&] { return service.isStarted() == started; });
  }

  test::FakeGeoClue service{world->bus->connect(QStringLiteral("service"))};
  std::vector<Coordinate> told;
};

TEST_F(DesktopPositionsTest, positions_areThoseOfTheService) {
  service.start();
  service.move(52.5, 13.4);
  const Subscription updates = follow();
  EXPECT_TRUE(tells({{52.5, 13.4}}));
  service.move(-33.9, 151.2);
  EXPECT_TRUE(tells({{52.5, 13.4}, {-33.9, 151.2}}));
  EXPECT_EQ(service.clientProperties().value(QStringLiteral("DesktopId")).toString(),
            QStringLiteral("vitrelle"));
}

TEST_F(DesktopPositionsTest, serviceOfAnotherMaker_isUnderstood) {
  if (!test::MockedService::isInstalled()) GTEST_SKIP() << "python3-dbusmock is not installed";
  const test::MockedService mocked(*world->bus,
                                   {.name = test::locationService,
                                    .path = QStringLiteral("/org/freedesktop/GeoClue2/Manager"),
                                    .pattern = QStringLiteral(VITRELLE_GEOCLUE_TEMPLATE)});
  mocked.tell(QStringLiteral("Move"), {52.5, 13.4});
  const Subscription updates = follow();
  EXPECT_TRUE(tells({{52.5, 13.4}}));
  mocked.tell(QStringLiteral("Move"), {-33.9, 151.2});
  EXPECT_TRUE(tells({{52.5, 13.4}, {-33.9, 151.2}}));
}

TEST_F(DesktopPositionsTest, service_isStoppedWithTheSubscription) {
  service.start();
  Subscription updates = follow();
  ASSERT_TRUE(becomesStarted(true));
  updates.cancel();
  EXPECT_TRUE(becomesStarted(false));
  service.move(1, 2);
  QTest::qWait(50);
  EXPECT_TRUE(told.empty());
}

TEST_F(DesktopPositionsTest, silentService_holdsNothingUp) {
  service.beSilent();
  service.start();
  QElapsedTimer timer;
  timer.start();
  Subscription updates = follow();
  QTest::qWait(100);
  updates.cancel();
  EXPECT_LT(timer.elapsed(), 2000);
  service.stop(); // or the thread would wait on
  QTest::qWait(500);
}

TEST_F(DesktopPositionsTest, machineWithoutTheService_saysNothing) {
  const Subscription updates = follow();
  QTest::qWait(100);
  EXPECT_TRUE(told.empty());
}

TEST_F(DesktopPositionsTest, service_isLookedForAside) {
  for (const bool runs : {false, true}) {
    if (runs) service.start();
    std::optional<bool> found;
    const Subscription look =
        lookForService(makeQtLoop(), patience, [&](bool isThere) { found = isThere; });
    EXPECT_FALSE(found) << "before it returned";
    EXPECT_TRUE(QTest::qWaitFor([&] { return found.has_value(); }));
    EXPECT_EQ(found, runs);
  }
  world->bus->suspend();
  QElapsedTimer timer;
  timer.start();
  std::optional<bool> found;
  const Subscription look = lookForService(makeQtLoop(), std::chrono::milliseconds(200),
                                           [&](bool isThere) { found = isThere; });
  EXPECT_LT(timer.elapsed(), 50) << "a silent bus holds no frame up";
  EXPECT_TRUE(QTest::qWaitFor([&] { return found.has_value(); }));
  EXPECT_EQ(found, false);
  world->bus->resume();
}

// A process asks for the system's bus once: alone this test has it connect meanwhile.
TEST_F(DesktopPositionsTest, answerThatComesTooLate_isNobodysAnyMore) {
  service.start();
  world->bus->suspend();
  Platform platform = test::unimplementedPlatform();
  useLocationAtOnce(platform, {.home = HomeFolder("/nowhere"), .phone = {}}, makeQtLoop());
  EXPECT_FALSE(platform.locationSettings.hasDesktopService());
  world->bus->resume();
  QTest::qWait(200);
  EXPECT_FALSE(platform.locationSettings.hasDesktopService()) << "it is asked once";
}

TEST(LocationService, isThereWhenItRunsOrCanBeStarted) {
  test::PrivateBus bus;
  const QDBusConnection own = bus.connect(QStringLiteral("own"));
  EXPECT_FALSE(hasLocationService(own, patience));
  test::FakeGeoClue service(bus.connect(QStringLiteral("running")));
  service.start();
  EXPECT_TRUE(hasLocationService(own, patience));
  service.stop();
  EXPECT_FALSE(hasLocationService(own, patience));
  const QString started = bus.servicesFolder() + QStringLiteral("/started");
  QFile file(bus.servicesFolder() + QStringLiteral("/geoclue.service"));
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write("[D-BUS Service]\nName=org.freedesktop.GeoClue2\nExec=/usr/bin/touch " +
             started.toUtf8() + "\n");
  file.close();
  EXPECT_TRUE(QTest::qWaitFor([&] { return hasLocationService(own, patience); }));
  QTest::qWait(50);
  EXPECT_FALSE(QFile::exists(started)) << "looking does not start it";
}

TEST(LocationService, withoutABus_isNotThere) {
  const QDBusConnection none =
      QDBusConnection::connectToBus(QStringLiteral("unix:path=/nowhere"), QStringLiteral("none"));
  EXPECT_FALSE(hasLocationService(none, patience));
}

TEST(LocationService, silentBus_isNotWaitedForLong) {
  test::PrivateBus bus;
  const QDBusConnection own = bus.connect(QStringLiteral("own"));
  bus.suspend();
  QElapsedTimer timer;
  timer.start();
  EXPECT_FALSE(hasLocationService(own, std::chrono::milliseconds(100)));
  EXPECT_LT(timer.elapsed(), 2000);
  bus.resume();
}

} // namespace
} // namespace vitrelle::host

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  const QCoreApplication application(argc, argv);
  vitrelle::host::world = new vitrelle::host::World;
  testing::AddGlobalTestEnvironment(vitrelle::host::world);
  return RUN_ALL_TESTS();
}
