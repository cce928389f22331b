#include "core/families/weather/AlphaWeatherView.h"

#include <string>

namespace vitrelle {

namespace {

constexpr GateRefusal locationServicesRequest{
    .symbol = "location.slash.fill",
    .title = "We can't get Weather Data",
    .message =
        "Your Precise Location is needed to get the current weather for your current location. "
        "Without this data we cannot let you customise weather widget styles. Please re-enable "
        "location services for Vitrelle in Settings > Privacy > Location Services > Vitrelle or "
        "tap the button below.",
    .messageSize = 18,
    .isMessageOnPanel = true,
    .button = "Open Settings",
    .buttonSymbol = "gear"};

} // namespace

AlphaWeatherView::AlphaWeatherView(const Platform& platform)
    : platform_(platform),
      locationManager_(platform),
      view_(locationManager_.onChange([this] { changed(); })) {}

void AlphaWeatherView::appear() {
  platform_.debugConsole.print(std::string(statusText(locationManager_.authorizationStatus())));
}

GateState AlphaWeatherView::state() const {
  return isAuthorized(locationManager_.authorizationStatus()) ? GateState::open
                                                              : GateState::refused;
}

const GateRefusal& AlphaWeatherView::refusal() const {
  return locationServicesRequest;
}

void AlphaWeatherView::press() {
  platform_.location.openSettings();
}

} // namespace vitrelle
