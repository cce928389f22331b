// The machine's battery over a bus of its own, with a stand-in for the power service, and over a
// made-up folder of the kernel's.
#include "host/power/SystemBattery.h"

#include "core/platform/Platform.h"
#include "host/desktop/QtLoop.h"
#include "host/power/PowerSupplies.h"
#include "tests/host/power/FakePower.h"
#include "tests/host/power/FakeSupplies.h"
#include "tests/support/MockedService.h"
#include "tests/support/PrivateBus.h"
#include "tests/support/UnimplementedPlatform.h"

#include <QCoreApplication>
#include <QDBusObjectPath>
#include <QElapsedTimer>
#include <QTest>

#include <gtest/gtest.h>

#include <chrono>
#include <cmath>
#include <utility>
#include <vector>

namespace vitrelle::host {
namespace {

const QString percentage = QStringLiteral("Percentage");

class SystemBatteryTest : public testing::Test {
 protected:
  SystemBatteryTest() { supplies.set("BAT0", {{"type", "Battery"}, {"capacity", "40"}}); }

  Battery batteryOn(const QDBusConnection& connection) {
    return makeBattery({.connect =
                            [this, connection](std::function<void(const QDBusConnection&)> done) {
                              if (!isSlow) done(connection);
                              connected = [connection, done] { done(connection); };
                              return Subscription([this] { connected = nullptr; });
                            },
                        .patience = patience,
                        .supplies = supplies.path(),
                        .watchSupplies =
                            [this](std::function<void()> onChange) {
                              return supplyChanges.add(std::move(onChange));
                            }});
  }
  void monitor() {
    battery = batteryOn(bus.connect(QStringLiteral("own")));
    battery.setMonitoringEnabled(true);
  }
  Subscription watch() {
    return battery.watch([this](float level) { told.push_back(level); });
  }
  void change(const char* capacity) {
    supplies.set("BAT0", {{"capacity", capacity}});
    supplyChanges.notify();
  }
  bool tells(const std::vector<float>& levels) {
    const bool came = QTest::qWaitFor([&] { return told.size() >= levels.size(); });
    QTest::qWait(20); // nothing more
    return came && told == levels;
  }

  bool isSlow = false;             ///< the bus
  std::function<void()> connected; ///< then tells that it is there after all
  std::chrono::milliseconds patience = std::chrono::seconds(10); // a busy machine is slow
  test::PrivateBus bus;
  test::FakePower power{bus.connect(QStringLiteral("power"))};
  test::FakeSupplies supplies;
  Subscribers<> supplyChanges;
  Battery battery;
  std::vector<float> told;
};

class ServedBatteryTest : public SystemBatteryTest {
 protected:
  ServedBatteryTest() {
    power.start();
    monitor();
  }
};

TEST_F(ServedBatteryTest, level_isTheServicesWithoutAnEventLoop) {
  EXPECT_FLOAT_EQ(battery.level(), 0.73F);
}

TEST_F(ServedBatteryTest, level_isKnownOnlyWhileItIsMonitored) {
  const Subscription subscription = watch();
  battery.setMonitoringEnabled(false);
  EXPECT_EQ(battery.level(), unknownBatteryLevel);
  power.set({{percentage, 50.0}});
  EXPECT_TRUE(tells({0.73F, unknownBatteryLevel}));
  battery.setMonitoringEnabled(true);
  EXPECT_TRUE(QTest::qWaitFor([&] { return battery.level() == 0.5F; }));
  EXPECT_EQ(told.back(), 0.5F);
}

TEST_F(ServedBatteryTest, watching_tellsEachOtherValueOnce) {
  Subscription subscription = watch();
  EXPECT_EQ(told, std::vector<float>{0.73F});
  power.set({{percentage, 72.0}});
  EXPECT_TRUE(tells({0.73F, 0.72F}));
  power.set({{QStringLiteral("TimeToEmpty"), qlonglong(100)}});
  change("10"); // the service knows better
  EXPECT_TRUE(tells({0.73F, 0.72F}));
  power.set({{QStringLiteral("IsPresent"), false}});
  EXPECT_TRUE(tells({0.73F, 0.72F, unknownBatteryLevel}));
  subscription.cancel();
  power.set({{QStringLiteral("IsPresent"), true}});
  QTest::qWait(50);
  EXPECT_EQ(told.size(), 3U);
  EXPECT_FLOAT_EQ(battery.level(), 0.72F);
}

TEST_F(ServedBatteryTest, nothing_isAskedAgainWithoutAReason) {
  const Subscription subscription = watch();
  QTest::qWait(50);
  for (int i = 0; i < 5; ++i)
    battery.level();
  QTest::qWait(500);
  EXPECT_EQ(power.questions(), 1);
}

TEST_F(ServedBatteryTest, service_mayEndAndStart) {
  const Subscription subscription = watch();
  power.stop();
  EXPECT_TRUE(tells({0.73F, 0.4F}));
  change("39");
  EXPECT_TRUE(tells({0.73F, 0.4F, 0.39F}));
  power.start();
  EXPECT_TRUE(tells({0.73F, 0.4F, 0.39F, 0.73F}));
}

TEST_F(ServedBatteryTest, whatIsNoBattery_hasNoLevel) {
  const QVariantMap cases[] = {{{QStringLiteral("Type"), 0U}},
                               {{QStringLiteral("Type"), 3U}}, // keeps a desktop alive for a while
                               {{QStringLiteral("IsPresent"), false}},
                               {{percentage, QStringLiteral("much")}},
                               {{percentage, std::nan("")}}};
  const QVariantMap sound{
      {QStringLiteral("Type"), 2U}, {QStringLiteral("IsPresent"), true}, {percentage, 20.0}};
  const Subscription subscription = watch();
  std::vector<float> expected{0.73F};
  for (const QVariantMap& one : cases) {
    power.set(one);
    expected.push_back(unknownBatteryLevel);
    EXPECT_TRUE(tells(expected)) << one.firstKey().toStdString();
    power.set(sound);
    expected.push_back(0.2F);
    EXPECT_TRUE(tells(expected)) << one.firstKey().toStdString();
  }
}

TEST_F(SystemBatteryTest, serviceOfAnotherMaker_isUnderstood) {
  if (!test::MockedService::isInstalled()) GTEST_SKIP() << "python3-dbusmock is not installed";
  test::MockedService mocked(bus, {.name = test::powerService,
                                   .path = QStringLiteral("/org/freedesktop/UPower"),
                                   .pattern = QStringLiteral("upower")});
  const auto set = [&](const QVariantMap& changed) {
    const QDBusObjectPath display(QStringLiteral("/org/freedesktop/UPower/devices/DisplayDevice"));
    mocked.tell(QStringLiteral("SetDeviceProperties"), {QVariant::fromValue(display), changed});
  };
  monitor();
  EXPECT_EQ(battery.level(), unknownBatteryLevel) << "a machine without a battery";
  const Subscription subscription = watch();
  set({{QStringLiteral("IsPresent"), true}, {percentage, 73.0}, {QStringLiteral("Type"), 2U}});
  EXPECT_TRUE(tells({unknownBatteryLevel, 0.73F}));
  set({{percentage, 72.5}});
  EXPECT_TRUE(tells({unknownBatteryLevel, 0.73F, 0.725F}));
  mocked.end();
  EXPECT_TRUE(tells({unknownBatteryLevel, 0.73F, 0.725F, 0.4F})) << "the kernel's";
}

TEST_F(SystemBatteryTest, kernel_isAskedWhereThereIsNoService) {
  monitor();
  EXPECT_FLOAT_EQ(battery.level(), 0.4F);
  const Subscription subscription = watch();
  change("40");
  change("41");
  EXPECT_TRUE(tells({0.4F, 0.41F}));
  power.start();
  EXPECT_TRUE(tells({0.4F, 0.41F, 0.73F}));
}

TEST_F(SystemBatteryTest, silentService_isNotWaitedForLong) {
  patience = std::chrono::milliseconds(150);
  power.beSilent(true);
  power.start();
  monitor();
  QElapsedTimer timer;
  timer.start();
  EXPECT_FLOAT_EQ(battery.level(), 0.4F);
  EXPECT_LT(timer.elapsed(), 4000);
  EXPECT_FLOAT_EQ(battery.level(), 0.4F);
  power.beSilent(false);
  power.set({{percentage, 60.0}});
  EXPECT_TRUE(QTest::qWaitFor([&] { return battery.level() == 0.6F; })) << "it speaks again";
}

TEST_F(SystemBatteryTest, untilThereIsABus_theKernelIsAsked) {
  isSlow = true;
  power.start();
  monitor();
  const Subscription subscription = watch();
  change("39");
  ASSERT_TRUE(connected);
  connected();
  EXPECT_TRUE(tells({0.4F, 0.39F, 0.73F}));
  monitor();
  battery = {};
  EXPECT_FALSE(connected) << "nobody waits for it any more";
}

TEST_F(SystemBatteryTest, busThatFallsSilent_isNotWaitedForLong) {
  patience = std::chrono::milliseconds(150);
  power.start();
  const QDBusConnection connection = bus.connect(QStringLiteral("own"));
  bus.suspend();
  QElapsedTimer timer;
  timer.start();
  battery = batteryOn(connection);
  battery.setMonitoringEnabled(true);
  EXPECT_FLOAT_EQ(battery.level(), 0.4F);
  EXPECT_LT(timer.elapsed(), 4000);
  bus.resume();
}

TEST_F(SystemBatteryTest, service_isNotStartedToLook) {
  const QString started = bus.servicesFolder() + QStringLiteral("/started");
  QFile service(bus.servicesFolder() + QStringLiteral("/power.service"));
  ASSERT_TRUE(service.open(QIODevice::WriteOnly));
  service.write("[D-BUS Service]\nName=org.freedesktop.UPower\nExec=/usr/bin/touch " +
                started.toUtf8() + "\n");
  service.close();
  monitor();
  EXPECT_FLOAT_EQ(battery.level(), 0.4F);
  QTest::qWait(200);
  EXPECT_FALSE(QFile::exists(started));
  // Anybody else's question would have started it.
  bus.connect(QStringLiteral("asker"))
      .call(QDBusMessage::createMethodCall(test::powerService, QStringLiteral("/"),
                                           QStringLiteral("a.b"), QStringLiteral("C")),
            QDBus::NoBlock);
  EXPECT_TRUE(QTest::qWaitFor([&] { return QFile::exists(started); }));
}

TEST_F(SystemBatteryTest, withoutABus_theKernelIsAsked) {
  battery = batteryOn(
      QDBusConnection::connectToBus(QStringLiteral("unix:path=/nowhere"), QStringLiteral("none")));
  EXPECT_EQ(battery.level(), unknownBatteryLevel) << "it is not monitored";
  battery.setMonitoringEnabled(true);
  EXPECT_FLOAT_EQ(battery.level(), 0.4F);
}

TEST_F(SystemBatteryTest, busThatLetsInAndStaysSilent_holdsNothingUp) {
  static bool isFirst = true;
  if (!std::exchange(isFirst, false)) GTEST_SKIP() << "a process asks for its system's bus once";
  power.start();
  bus.suspend();
  qputenv("DBUS_SYSTEM_BUS_ADDRESS", bus.address().toUtf8());
  const float kernels = batteryLevelIn("/sys/class/power_supply");
  std::vector<Battery> batteries;
  for (const auto use : {useBattery, useBatteryAtOnce}) {
    Platform platform = test::unimplementedPlatform();
    QElapsedTimer timer;
    timer.start();
    use(platform, {.home = HomeFolder("/nowhere"), .phone = {}}, makeQtLoop());
    platform.battery.setMonitoringEnabled(true);
    EXPECT_EQ(platform.battery.level(), kernels);
    EXPECT_LT(timer.elapsed(), 4000);
    batteries.push_back(platform.battery);
  }
  bus.resume();
  for (const Battery& one : batteries) {
    const auto isTold = [&] {
      power.set({{percentage, 60.0}}); // again, for a busy machine may be too slow to answer
      return one.level() == 0.6F;
    };
    EXPECT_TRUE(QTest::qWaitFor(isTold)) << "it speaks after all";
  }
}

} // namespace
} // namespace vitrelle::host

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  const QCoreApplication application(argc, argv);
  return RUN_ALL_TESTS();
}
