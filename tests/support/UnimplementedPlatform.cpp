#include "tests/support/UnimplementedPlatform.h"

#include <gtest/gtest.h>

namespace vitrelle::test {

namespace {

/// Converts to any operation; calling it fails the test and gives an empty answer.
struct Unimplemented {
  const char* name;

  template <class Answer, class... Arguments>
  operator std::function<Answer(Arguments...)>() const {
    return [operation = name](Arguments...) -> Answer {
      ADD_FAILURE() << "the test does not implement " << operation;
      if constexpr (!std::is_void_v<Answer>) return empty<Answer>();
    };
  }

 private:
  template <class Answer>
  static Answer empty() {
    if constexpr (std::is_constructible_v<Answer, Failure>) {
      return Failure{"test", "unimplemented"};
    } else {
      return Answer{};
    }
  }
};

} // namespace

Platform unimplementedPlatform() {
  return {
      .defaults = {.value = Unimplemented{"defaults.value"},
                   .set = Unimplemented{"defaults.set"},
                   .remove = Unimplemented{"defaults.remove"},
                   .keys = Unimplemented{"defaults.keys"},
                   .watch = Unimplemented{"defaults.watch"},
                   .watchKeys = Unimplemented{"defaults.watchKeys"}},
      .files = {.groupContainer = Unimplemented{"files.groupContainer"},
                .fileExists = Unimplemented{"files.fileExists"},
                .lock = Unimplemented{"files.lock"}},
      .images = {.load = Unimplemented{"images.load"},
                 .decode = Unimplemented{"images.decode"},
                 .resized = Unimplemented{"images.resized"},
                 .pngRepresentation = Unimplemented{"images.pngRepresentation"},
                 .writePngFiles = Unimplemented{"images.writePngFiles"}},
      .device = {.machine = Unimplemented{"device.machine"},
                 .environment = Unimplemented{"device.environment"},
                 .isOperatingSystemAtLeast = Unimplemented{"device.isOperatingSystemAtLeast"},
                 .screenBounds = Unimplemented{"device.screenBounds"},
                 .screenScale = Unimplemented{"device.screenScale"},
                 .screenNativeScale = Unimplemented{"device.screenNativeScale"},
                 .userInterfaceStyle = Unimplemented{"device.userInterfaceStyle"}},
      .phoneBook = {.models = Unimplemented{"phoneBook.models"},
                    .current = Unimplemented{"phoneBook.current"},
                    .save = Unimplemented{"phoneBook.save"},
                    .watch = Unimplemented{"phoneBook.watch"}},
      .widgetCenter = {.reloadAllTimelines = Unimplemented{"widgetCenter.reloadAllTimelines"},
                       .watchReloads = Unimplemented{"widgetCenter.watchReloads"}},
      .bundle = {.identifier = Unimplemented{"bundle.identifier"},
                 .shortVersion = Unimplemented{"bundle.shortVersion"},
                 .appStoreReceiptURL = Unimplemented{"bundle.appStoreReceiptURL"}},
      .debugConsole = {.print = Unimplemented{"debugConsole.print"}},
      .mainQueue = {.asyncAfter = Unimplemented{"mainQueue.asyncAfter"}},
      .notificationCentre = {.post = Unimplemented{"notificationCentre.post"},
                             .listen = Unimplemented{"notificationCentre.listen"}},
      .application = {.suspend = Unimplemented{"application.suspend"},
                      .rootViewController = Unimplemented{"application.rootViewController"},
                      .connectedScenes = Unimplemented{"application.connectedScenes"}},
      .links = {.send = Unimplemented{"links.send"}},
      .haptics = {.success = Unimplemented{"haptics.success"},
                  .error = Unimplemented{"haptics.error"},
                  .lightImpact = Unimplemented{"haptics.lightImpact"},
                  .mediumImpact = Unimplemented{"haptics.mediumImpact"}},
      .bannerKit = {.start = Unimplemented{"bannerKit.start"},
                    .load = Unimplemented{"bannerKit.load"}},
      .symbols = {.outline = Unimplemented{"symbols.outline"},
                  .parts = Unimplemented{"symbols.parts"},
                  .match = Unimplemented{"symbols.match"}},
      .drawing = {.textSize = Unimplemented{"drawing.textSize"},
                  .lastBaseline = Unimplemented{"drawing.lastBaseline"},
                  .render = Unimplemented{"drawing.render"}},
      .fonts = {.families = Unimplemented{"fonts.families"}},
      .dateTime = {.now = Unimplemented{"dateTime.now"},
                   .startOfDay = Unimplemented{"dateTime.startOfDay"},
                   .text = Unimplemented{"dateTime.text"}},
      .battery = {.setMonitoringEnabled = Unimplemented{"battery.setMonitoringEnabled"},
                  .level = Unimplemented{"battery.level"},
                  .watch = Unimplemented{"battery.watch"}},
      .location = {.authorizationStatus = Unimplemented{"location.authorizationStatus"},
                   .watchAuthorization = Unimplemented{"location.watchAuthorization"},
                   .requestWhenInUseAuthorization =
                       Unimplemented{"location.requestWhenInUseAuthorization"},
                   .startUpdatingLocation = Unimplemented{"location.startUpdatingLocation"},
                   .openSettings = Unimplemented{"location.openSettings"}},
      .locationSettings = {.current = Unimplemented{"locationSettings.current"},
                           .save = Unimplemented{"locationSettings.save"},
                           .watch = Unimplemented{"locationSettings.watch"},
                           .hasDesktopService =
                               Unimplemented{"locationSettings.hasDesktopService"}},
      .geocoder = {.reverseGeocodeLocation = Unimplemented{"geocoder.reverseGeocodeLocation"},
                   .search = Unimplemented{"geocoder.search"}},
      .weatherService = {.weather = Unimplemented{"weatherService.weather"},
                         .openAttribution = Unimplemented{"weatherService.openAttribution"}},
      .musicPlayer = {.nowPlayingItem = Unimplemented{"musicPlayer.nowPlayingItem"},
                      .playbackState = Unimplemented{"musicPlayer.playbackState"},
                      .onNowPlayingItemChange = Unimplemented{"musicPlayer.onNowPlayingItemChange"},
                      .requestAuthorization = Unimplemented{"musicPlayer.requestAuthorization"},
                      .currentSubscription = Unimplemented{"musicPlayer.currentSubscription"},
                      .presentOffer = Unimplemented{"musicPlayer.presentOffer"}},
      .pasteboard = {.hasImages = Unimplemented{"pasteboard.hasImages"},
                     .image = Unimplemented{"pasteboard.image"}},
      .reviewController = {.requestReview = Unimplemented{"reviewController.requestReview"}},
      .identifiers = {.newUuid = Unimplemented{"identifiers.newUuid"}},
  };
}

} // namespace vitrelle::test
