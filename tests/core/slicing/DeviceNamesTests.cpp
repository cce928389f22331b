#include "core/slicing/DeviceNames.h"

#include "tests/support/Fakes.h"
#include "tests/support/Fingerprint.h"
#include "tests/support/UnimplementedPlatform.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>
#include <string>

namespace vitrelle {
namespace {

TEST(DeviceNames, table_has121IdentifiersOf73Names) {
  std::map<std::string_view, std::string_view> rows;
  std::set<std::string_view> names;
  for (const DeviceNameRow& row : deviceNameRows()) {
    EXPECT_TRUE(rows.emplace(row.identifier, row.name).second) << row.identifier << " stands twice";
    names.insert(row.name);
  }
  EXPECT_EQ(rows.size(), 121U);
  EXPECT_EQ(names.size(), 73U);
  EXPECT_EQ(std::ranges::count_if(names,
                                  [](std::string_view name) { return name.starts_with("iPhone"); }),
            43);
  std::string text;
  for (const auto& [identifier, name] : rows)
    text.append(identifier).append("|").append(name).append("\n");
  // Reckoned from the list of devices, not from this table.
  EXPECT_EQ(test::fingerprint(text), 0x3b42d51772115374);
}

TEST(DeviceNames, modelName_mapsKnownOnesAndPassesOthersThrough) {
  Platform platform = test::unimplementedPlatform();
  test::FakePhone phone;
  phone.use(platform);
  const std::pair<const char*, const char*> cases[] = {
      {"iPhone17,1", "iPhone 16 Pro"},
      {"iPhone14,1", "iPhone 13"},
      {"iPhone14,5", "iPhone 13"},
      {"iPhone14,4", "iPhone 13 Mini"},
      {"iPad2,5", "iPad mini"},
      {"iPod9,1", "iPod touch (7th generation)"},
      {"AudioAccessory1,1", "HomePod"},
      {"iPhone17,5", "iPhone17,5"},
      {"iphone16,1", "iphone16,1"},
      {"", ""},
      {"iOS", "iOS"},
      {"arm64", "Simulator iOS"},
  };
  for (const auto& [identifier, name] : cases) {
    EXPECT_EQ(modelName(identifier, platform.device), name) << identifier;
  }
  phone.environment["SIMULATOR_MODEL_IDENTIFIER"] = "iPhone15,4";
  for (const char* machine : {"i386", "x86_64", "arm64"}) {
    EXPECT_EQ(modelName(machine, platform.device), "Simulator iPhone 15") << machine;
  }
}

TEST(DeviceNames, machineIdentifier_skipsZerosAndRefusesOtherThanAscii) {
  MachineField field{};
  field[0] = 'i';
  field[3] = 'P';
  field[255] = '9';
  EXPECT_EQ(machineIdentifier(field), "iP9");
  field[7] = -1;
  EXPECT_DEATH(machineIdentifier(field), "not ASCII");
}

TEST(DeviceNames, deviceName_isFoundOnceForAPlatform) {
  Platform platform = test::unimplementedPlatform();
  test::FakePhone phone;
  phone.use(platform);
  EXPECT_EQ(deviceName(platform), "iPhone 15 Pro");
  phone.machine = "iPhone17,3";
  EXPECT_EQ(deviceName(platform), "iPhone 15 Pro");
  forgetDevice(platform);
  EXPECT_EQ(deviceName(platform), "iPhone 16") << "another phone is stood for";
}

} // namespace
} // namespace vitrelle
