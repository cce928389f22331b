#include "host/power/PowerSupplies.h"

#include "core/platform/Battery.h"
#include "host/desktop/PollLoop.h"
#include "host/files/Descriptor.h"
#include "tests/host/power/FakeSupplies.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include <linux/netlink.h>
#include <sys/socket.h>

namespace vitrelle::host {
namespace {

using test::Attributes;

const Attributes byEnergy{
    {"type", "Battery"}, {"energy_now", "30000000"}, {"energy_full", "40000000"}};

Attributes with(Attributes attributes, const Attributes& others) {
  for (const auto& [name, value] : others)
    attributes[name] = value;
  return attributes;
}

TEST(PowerSupplies, levels_areOfTheMachinesOwnBatteries) {
  const Attributes byCharge{{"type", "Battery"}, {"charge_now", "1000"}, {"charge_full", "4000"}};
  const Attributes byCapacity{{"type", "Battery"}, {"capacity", "50"}};
  const Attributes small = with(byEnergy, {{"energy_now", "1000000"}, {"energy_full", "10000000"}});
  const Attributes mains{{"type", "Mains"}, {"online", "1"}};
  const Attributes mouse = with(byCapacity, {{"scope", "Device"}});
  const struct {
    const char* what;
    std::vector<Attributes> supplies;
    float level;
  } cases[] = {
      {"nothing", {}, unknownBatteryLevel},
      {"no battery", {mains, mouse}, unknownBatteryLevel},
      {"by energy", {mains, byEnergy, mouse}, 0.75F},
      {"by charge", {byCharge}, 0.25F},
      {"by capacity", {byCapacity}, 0.5F},
      {"the machine's", {with(byCapacity, {{"scope", "System"}})}, 0.5F},
      {"taken out", {with(byEnergy, {{"present", "0"}}), byCharge}, 0.25F},
      {"put in", {with(byEnergy, {{"present", "1"}})}, 0.75F},
      {"energy is more exact", {with(byEnergy, {{"capacity", "20"}, {"charge_now", "0"}})}, 0.75F},
      {"two weighed by what they hold", {byEnergy, small}, 0.62F},
      {"two that can't be weighed", {byEnergy, byCharge}, 0.5F},
      {"three of which one is mute", {byEnergy, {{"type", "Battery"}}, byCharge}, 0.5F},
      {"more than full", {with(byEnergy, {{"energy_now", "41000000"}})}, 1},
      {"never charged", {with(byEnergy, {{"energy_full", "0"}, {"capacity", "7"}})}, 0.07F},
      {"nonsense", {with(byCapacity, {{"capacity", "5x"}})}, unknownBatteryLevel},
      {"below empty", {with(byCapacity, {{"capacity", "-1"}})}, unknownBatteryLevel}};
  for (const auto& one : cases) {
    const test::FakeSupplies folder;
    for (std::size_t i = 0; i < one.supplies.size(); ++i)
      folder.set("supply" + std::to_string(i), one.supplies[i]);
    EXPECT_FLOAT_EQ(batteryLevelIn(folder.path()), one.level) << one.what;
  }
  EXPECT_EQ(batteryLevelIn("/nowhere"), unknownBatteryLevel);
}

/// As the kernel says it, which only the powerful can; false for others.
bool say(const char* subsystem) {
  using namespace std::string_literals;
  std::string event = "change@/devices/something\0ACTION=change\0SUBSYSTEM="s;
  event += std::string(subsystem) + '\0';
  const Descriptor speaker(socket(AF_NETLINK, SOCK_DGRAM | SOCK_CLOEXEC, NETLINK_KOBJECT_UEVENT));
  sockaddr_nl everybody{};
  everybody.nl_family = AF_NETLINK;
  everybody.nl_groups = 1;
  return sendto(speaker.get(), event.data(), event.size(), 0,
                reinterpret_cast<const sockaddr*>(&everybody), sizeof everybody) > 0;
}

TEST(PowerSupplies, watching_hearsOfPowerAlone) {
  PollLoop loop;
  int calls = 0;
  Subscription watch = watchPowerSupplies(loop.operations(), [&] { ++calls; });
  const auto listen = [&] {
    const Subscription end = loop.operations().every(0.05, [&] { loop.stop(); });
    loop.run();
    return calls;
  };
  if (!say("net")) GTEST_SKIP() << "this user may not speak for the kernel";
  EXPECT_EQ(listen(), 0);
  say("net");
  say("power_supply");
  say("net");
  EXPECT_EQ(listen(), 1) << "at once for all that has come";
  say("power_supply");
  EXPECT_EQ(listen(), 2);
  watch.cancel();
  say("power_supply");
  EXPECT_EQ(listen(), 2);
}

} // namespace
} // namespace vitrelle::host
