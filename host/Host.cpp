#include "host/Host.h"

#include "host/Absent.h"
#include "host/desktop/AppInstance.h"
#include "host/desktop/MainQueue.h"
#include "host/desktop/Timelines.h"
#include "host/imaging/ImageFile.h"
#include "host/store/SqliteDefaults.h"
#include "host/symbols/Symbols.h"
#include "host/time/Clock.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdio>
#include <functional>
#include <memory>
#include <optional>
#include <random>
#include <string>
#include <utility>
#include <vector>

namespace vitrelle::host {

namespace {

/// One list of listeners for each platform.
NotificationCentre makeNotificationCentre() {
  const auto listeners = std::make_shared<Subscribers<const Notification&>>();
  return {.post = [listeners](const Notification& note) { listeners->notify(note); },
          .listen =
              [listeners](std::function<void(const Notification&)> listener) {
                return listeners->add(std::move(listener));
              }};
}

DebugConsole makeDebugConsole(bool verbose) {
  return {.print = [verbose](const std::string& line) {
    if (verbose) std::fprintf(stderr, "%s\n", line.c_str());
  }};
}

std::string newUuid() {
  std::array<std::uint8_t, 16> bytes{};
  std::random_device random;
  std::ranges::generate(bytes, [&random] { return static_cast<std::uint8_t>(random()); });
  bytes[6] = static_cast<std::uint8_t>((bytes[6] & 0x0F) | 0x40); // version 4,
  bytes[8] = static_cast<std::uint8_t>((bytes[8] & 0x3F) | 0x80); // variant 1
  std::string uuid;
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    if (i == 4 || i == 6 || i == 8 || i == 10) uuid += '-';
    char digits[3];
    std::snprintf(digits, sizeof digits, "%02X", bytes[i]);
    uuid += digits;
  }
  return uuid;
}

/// Programs that draw put the machine's in its place, unless a level was told.
Battery toldBattery(float level) {
  return {.setMonitoringEnabled = [](bool) {},
          .level = [level] { return level; },
          .watch =
              [level](const std::function<void(float)>& subscriber) {
                subscriber(level);
                return Subscription();
              }};
}

/// The same of a position.
Location toldLocation(const Coordinate& position) {
  constexpr AuthorizationStatus status = AuthorizationStatus::authorizedWhenInUse;
  return {.authorizationStatus = [] { return status; },
          .watchAuthorization =
              [](const std::function<void(AuthorizationStatus)>& subscriber) {
                subscriber(status);
                return Subscription();
              },
          .requestWhenInUseAuthorization = [] {},
          .startUpdatingLocation =
              [position](const std::function<void(const std::vector<Coordinate>&)>& subscriber) {
                subscriber({position});
                return Subscription();
              },
          .openSettings = [] {}};
}

} // namespace

Platform makePlatform(const HostOptions& options, const EventLoop& loop) {
  const HomeFolder& home = options.home;
  PhoneOperations phone = makePhone(home, options.phone, loop);
  return {
      .defaults = makeSqliteDefaults(home.path(), loop, options.storePatience),
      .files = home.files(),
      .images = makeImages(home),
      .device = std::move(phone.device),
      .phoneBook = std::move(phone.phoneBook),
      .widgetCenter = makeWidgetCenter(home, loop),
      .bundle = {
          .identifier = [] { return std::optional<std::string>("com.quillmeresoftware.vitrelle"); },
          .shortVersion = [] { return std::optional<std::string>(VITRELLE_VERSION); },
          .appStoreReceiptURL = [] { return std::optional<std::string>(); }},
      .debugConsole = makeDebugConsole(options.verbose),
      .mainQueue = makeMainQueue(loop),
      .notificationCentre = makeNotificationCentre(),
      // Programs with a window put their own in its place.
      .application = {.suspend = [] {},
                      .rootViewController = [] { return std::nullopt; },
                      .connectedScenes = [] { return std::vector<Scene>(); }},
      .links = makeLinks(home),
      // A desktop has nothing to be felt, and there is no advertising kit for it.
      .haptics = {.success = [] {}, .error = [] {}, .lightImpact = [] {}, .mediumImpact = [] {}},
      .bannerKit = {.start = [] {}, .load = [](const BannerRequest&, const BannerDelegate&) {}},
      .symbols = makeSymbols(),
      .drawing = noDrawing(),
      .fonts = {.families = [] { return std::vector<FontFamily>(); }},
      .dateTime = makeClock(options.now),
      .battery = toldBattery(options.battery.value_or(unknownBatteryLevel)),
      .location = options.location ? toldLocation(*options.location) : noLocation(),
      .locationSettings = noLocationSettings(),
      .geocoder = noGeocoder(),
      .weatherService = noWeatherService(),
      .musicPlayer = noMusicPlayer(),
      .pasteboard = noPasteboard(),
      .reviewController = {.requestReview = [](const Scene&) {}},
      .identifiers = {.newUuid = newUuid}};
}

} // namespace vitrelle::host
