// What a program gets of the world that it does without: nothing, and at no cost. Programs that
// need it put the machine's own in its place.
#pragma once

#include "core/platform/Platform.h"

namespace vitrelle::host {

Drawing noDrawing();
Location noLocation();
LocationSettings noLocationSettings();
Geocoder noGeocoder();
WeatherService noWeatherService();
MusicPlayer noMusicPlayer();
Pasteboard noPasteboard();

} // namespace vitrelle::host
