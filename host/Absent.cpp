#include "host/Absent.h"

#include <cstddef>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace vitrelle::host {

Drawing noDrawing() {
  return {.textSize = [](const std::string&, const Font&, const PointSize&) { return PointSize(); },
          .lastBaseline = [](const std::string&, const Font&, const PointSize&) { return 0.0; },
          .render = [](std::span<const DisplayList>, const PointRect&, double) -> Result<Image> {
            return Failure{"drawing", "this program does not draw"};
          }};
}

Location noLocation() {
  constexpr AuthorizationStatus none = AuthorizationStatus::restricted;
  return {
      .authorizationStatus = [] { return none; },
      .watchAuthorization =
          [](const std::function<void(AuthorizationStatus)>& subscriber) {
            subscriber(none);
            return Subscription();
          },
      .requestWhenInUseAuthorization = [] {},
      .startUpdatingLocation =
          [](const std::function<void(const std::vector<Coordinate>&)>&) { return Subscription(); },
      .openSettings = [] {}};
}

LocationSettings noLocationSettings() {
  return {.current = [] { return LocationChoice(); },
          .save = [](const LocationChoice&) -> Status {
            return Failure{"location", "this program does not settle it"};
          },
          .watch =
              [](const std::function<void(const LocationChoice&)>& subscriber) {
                subscriber({});
                return Subscription();
              },
          .hasDesktopService = [] { return false; }};
}

// Nobody waits for these two: what asks them is not in the programs that have none.

Geocoder noGeocoder() {
  return {.reverseGeocodeLocation = [](const Coordinate&, const auto&) { return Subscription(); },
          .search = [](const std::string&, std::size_t, const auto&) { return Subscription(); }};
}

WeatherService noWeatherService() {
  return {.weather = [](const Coordinate&, const auto&) { return Subscription(); },
          .openAttribution = [] {}};
}

Pasteboard noPasteboard() {
  return {.hasImages = [] { return false; }, .image = [] { return std::optional<Image>(); }};
}

MusicPlayer noMusicPlayer() {
  return {.nowPlayingItem = [] { return std::optional<MediaItem>(); },
          .playbackState = [] { return playback::stopped; },
          .onNowPlayingItemChange = [](const std::function<void()>&) { return Subscription(); },
          .requestAuthorization = [](const auto&) { return Subscription(); },
          .currentSubscription = [](const auto&) { return Subscription(); },
          .presentOffer = [] { return false; }};
}

} // namespace vitrelle::host
