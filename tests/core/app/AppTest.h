// A platform in memory for the tests of screens.
#pragma once

#include "tests/support/Fakes.h"
#include "tests/support/UnimplementedPlatform.h"

#include "core/slicing/WidgetLocation.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

namespace vitrelle::test {

class AppTest : public testing::Test {
 protected:
  AppTest() {
    defaults.use(platform);
    folder.use(platform);
    phone.use(platform);
    console.use(platform);
    surroundings.use(platform);
    time.use(platform);
    battery.use(platform);
    location.use(platform);
    geocoder.use(platform);
    weather.use(platform);
    music.use(platform);
    pasteboard.use(platform);
    platform.identifiers.newUuid = [this] { return "id" + std::to_string(++ids_); };
    platform.bundle.identifier = [] { return std::optional<std::string>("com.example.program"); };
  }

  std::optional<std::int64_t> number(const std::string& key) {
    const auto& values = defaults.values(Suite::group);
    const auto found = values.find(key);
    if (found == values.end()) return std::nullopt;
    return std::get<std::int64_t>(found->second);
  }
  void setNumber(const std::string& key, std::int64_t value) {
    defaults.values(Suite::group).insert_or_assign(key, value);
  }
  void addOriginal(std::int64_t style, InterfaceStyle appearance) {
    folder.images.insert_or_assign(sliceFileName({style}, "original", appearance), screenshot);
  }
  void addStyle(std::int64_t style) {
    addOriginal(style, lightStyle);
    addOriginal(style, darkStyle);
  }
  /// What is cut from both screenshots.
  void addSlices(std::int64_t style) {
    for (const WidgetFamily size :
         {WidgetFamily::small, WidgetFamily::medium, WidgetFamily::large}) {
      for (const WidgetLocationImageNames slot : slots(size)) {
        for (const InterfaceStyle appearance : {lightStyle, darkStyle})
          folder.images.insert_or_assign(sliceFileName({style}, rawValue(slot), appearance),
                                         screenshot);
      }
    }
  }
  bool printed(const std::string& line) const {
    return std::ranges::count(console.lines, line) != 0;
  }

  Platform platform = unimplementedPlatform();
  FakeDefaults defaults;
  FakeFolder folder;
  FakePhone phone;
  FakeConsole console;
  FakeSurroundings surroundings;
  FakeTime time;
  FakeBattery battery;
  FakeLocation location;
  FakeGeocoder geocoder;
  FakeWeatherService weather;
  FakeMusicPlayer music;
  FakePasteboard pasteboard;
  Image screenshot = positionImage(1179, 2556);

 private:
  int ids_ = 0;
};

} // namespace vitrelle::test
