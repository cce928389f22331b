#include "core/slicing/Measurements.h"

#include "core/slicing/DeviceNames.h"
#include "core/slicing/WidgetLocation.h"
#include "host/phone/PhoneModels.h"
#include "tests/support/Fakes.h"
#include "tests/support/Fingerprint.h"
#include "tests/support/UnimplementedPlatform.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

namespace vitrelle {
namespace {

constexpr MeasurementTable tables[] = {MeasurementTable::iOS18, MeasurementTable::classic,
                                       MeasurementTable::zoomed};

/// Over "name|size|top|left|horizontal|vertical" and a line break for each row.
std::uint64_t fingerprint(std::span<const DeviceMeasurements> rows) {
  std::string text;
  for (const auto& [device, m] : rows) {
    text += device;
    for (const std::int64_t number :
         {m.widgetSize, m.topSpacing, m.leftSpacing, m.horizontalSpacing, m.verticalSpacing}) {
      text += "|" + std::to_string(number);
    }
    text += "\n";
  }
  return test::fingerprint(text);
}

std::set<std::string_view> devices(MeasurementTable table) {
  std::set<std::string_view> names;
  for (const DeviceMeasurements& row : measurementRows(table))
    names.insert(row.device);
  return names;
}

TEST(MeasurementTables, rows_areThoseThatWereMeasured) {
  EXPECT_EQ(measurementRows(MeasurementTable::iOS18).size(), 26U);
  EXPECT_EQ(measurementRows(MeasurementTable::classic).size(), 34U);
  EXPECT_EQ(measurementRows(MeasurementTable::zoomed).size(), 34U);
  // Reckoned from the measurements, not from this table.
  EXPECT_EQ(fingerprint(measurementRows(MeasurementTable::iOS18)), 0x28a6634af1ddcb6c);
  EXPECT_EQ(fingerprint(measurementRows(MeasurementTable::classic)), 0x6f8e528041bde253);
  EXPECT_EQ(fingerprint(measurementRows(MeasurementTable::zoomed)), 0x13d2eb5471c7e6c5);
}

TEST(MeasurementTables, gaps_areThePhonesThatAreNotSupported) {
  std::set<std::string_view> phones;
  for (const DeviceNameRow& row : deviceNameRows()) {
    if (row.name.starts_with("iPhone")) phones.insert(row.name);
  }
  const std::set<std::string_view> nowhere = {"iPhone 16 Pro", "iPhone 16 Pro Max", "iPhone 4",
                                              "iPhone 4s",     "iPhone 5",          "iPhone 5c",
                                              "iPhone 5s"};
  const std::set<std::string_view> onlyNew = {"iPhone 16", "iPhone 16 Plus"};
  const std::set<std::string_view> onlyOld = {
      "iPhone X",  "iPhone 8",       "iPhone 8 Plus", "iPhone 7",      "iPhone 7 Plus",
      "iPhone SE", "iPhone 6s Plus", "iPhone 6s",     "iPhone 6 Plus", "iPhone 6"};
  for (const MeasurementTable table : tables) {
    std::set<std::string_view> expected = phones;
    for (const auto name : nowhere)
      expected.erase(name);
    for (const auto name : table == MeasurementTable::iOS18 ? onlyOld : onlyNew) {
      expected.erase(name);
    }
    EXPECT_EQ(devices(table), expected) << static_cast<int>(table);
  }
}

TEST(MeasurementTables, slots_lieInsideThePhonesScreenshots) {
  for (const MeasurementTable table : tables) {
    for (const auto& [device, measurements] : measurementRows(table)) {
      const auto phone =
          std::ranges::find(host::phoneModels(), std::string(device), &PhoneModel::name);
      ASSERT_NE(phone, host::phoneModels().end()) << device;
      const ScreenMode& screen =
          table == MeasurementTable::zoomed ? phone->zoomed : phone->standard;
      EXPECT_EQ(Measurements::isZoomed(screen.scale, screen.nativeScale),
                table == MeasurementTable::zoomed)
          << device;
      for (const WidgetFamily family :
           {WidgetFamily::small, WidgetFamily::medium, WidgetFamily::large}) {
        for (const WidgetLocationImageNames slot : slots(family)) {
          const PixelRect rect = slotRectangle(slot, measurements);
          EXPECT_LE(static_cast<double>(rect.x + rect.width), screen.bounds.width * screen.scale)
              << device << ' ' << rawValue(slot);
          EXPECT_LE(static_cast<double>(rect.y + rect.height), screen.bounds.height * screen.scale)
              << device << ' ' << rawValue(slot);
        }
      }
    }
  }
}

TEST(Measurements, lookUp_failsAtTheFirstMissingKey) {
  const char* const keys[] = {"WIDGET_SIZE", "TOP_SPACING", "LEFT_SPACING", "HORIZONTAL_SPACING",
                              "VERTICAL_SPACING"};
  const WidgetMeasurements expected[] = {
      {}, {1, 0, 0, 0, 0}, {1, 2, 0, 0, 0}, {1, 2, 3, 0, 0}, {1, 2, 3, 4, 0}};
  for (std::size_t missing = 0; missing < 5; ++missing) {
    MeasurementsByDevice table;
    for (std::size_t i = 0; i < 5; ++i) {
      if (i != missing) table["Phone"][keys[i]] = static_cast<std::int64_t>(i) + 1;
    }
    std::vector<std::string> lines;
    const auto print = [&](const std::string& line) { lines.push_back(line); };
    EXPECT_EQ(Measurements::lookUp({.deviceName = "Phone"}, table, print), expected[missing])
        << keys[missing];
    ASSERT_EQ(lines.size(), 3U);
    EXPECT_EQ(lines[2], std::string("Error getting ") + keys[missing]);
  }
}

TEST(Measurements, lookUp_takesTheFirstSimulatorOutOfTheName) {
  const MeasurementsByDevice table = Measurements::dictionary(MeasurementTable::iOS18);
  const std::pair<const char*, const char*> cases[] = {
      {"Simulator iPhone 14", "iPhone 14"}, {"  Simulator\n", ""},
      {"iPhone 14 Simulator", "iPhone 14"}, {"Simulator Simulator x", "Simulator x"},
      {" iPhone 14", " iPhone 14"},         {"simulator iPhone 14", "simulator iPhone 14"},
  };
  for (const auto& [name, cleaned] : cases) {
    std::vector<std::string> lines;
    const WidgetMeasurements found = Measurements::lookUp(
        {.deviceName = name}, table, [&](const std::string& line) { lines.push_back(line); });
    EXPECT_EQ(lines.front(), cleaned) << name;
    EXPECT_EQ(found.widgetSize, std::string(cleaned) == "iPhone 14" ? 475 : 0) << name;
    if (found.widgetSize == 0) {
      EXPECT_EQ(lines.size(), 1U) << name;
    }
  }
}

TEST(Measurements, current_readsTheScreenAtEachCall) {
  Platform platform = test::unimplementedPlatform();
  test::FakePhone phone;
  test::FakeConsole console;
  phone.use(platform);
  console.use(platform);
  EXPECT_EQ(Measurements::current(platform), (WidgetMeasurements{474, 240, 83, 540, 588}));
  EXPECT_EQ(console.lines,
            (std::vector<std::string>{
                "iPhone 15 Pro",
                "[\"WIDGET_SIZE\": 474, \"TOP_SPACING\": 240, \"LEFT_SPACING\": 83, "
                "\"HORIZONTAL_SPACING\": 540, \"VERTICAL_SPACING\": 588]",
                "Running  iPhone 15 Pro , iOS 18+:  true , Zoomed =  false 474 240 83 540 588"}));

  phone.os = {17, 6, 1};
  EXPECT_EQ(Measurements::current(platform), (WidgetMeasurements{473, 271, 83, 540, 588}));
  phone.nativeScale = 3.7;
  EXPECT_EQ(Measurements::current(platform), (WidgetMeasurements{421, 202, 42, 454, 511}));
  phone.os = {18, 0, 0};
  EXPECT_EQ(Measurements::current(platform), (WidgetMeasurements{421, 202, 42, 454, 511}));
  phone.nativeScale = 2.6; // a scale above the native one is no zoom
  EXPECT_EQ(Measurements::current(platform), (WidgetMeasurements{474, 240, 83, 540, 588}));
}

TEST(Measurements, current_isZeroWhereThereAreNone) {
  for (const auto& [identifier, nativeScale] :
       {std::pair("iPhone17,1", 3.0), std::pair("iPhone17,3", 3.7), std::pair("iPad13,1", 2.0),
        std::pair("x86_64", 3.0)}) {
    Platform platform = test::unimplementedPlatform();
    test::FakePhone phone;
    test::FakeConsole console;
    phone.use(platform);
    console.use(platform);
    phone.machine = identifier;
    phone.nativeScale = nativeScale;
    EXPECT_EQ(Measurements::current(platform), WidgetMeasurements{}) << identifier;
    EXPECT_EQ(console.lines.size(), 1U) << identifier;
  }
}

} // namespace
} // namespace vitrelle
