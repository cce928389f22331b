// Every key of the two stores, with its type, what its absence means and its default.
#pragma once

#include "core/store/Key.h"

#include <tuple>

namespace vitrelle::keys {

using Int = std::int64_t;
using Double = double;
using Bool = bool;
using String = std::string;
using vitrelle::Data;
using vitrelle::Date;
using enum Absence;
using enum Suite;

// clang-format off

// The wallpaper styles.
inline constexpr Key<Int>    selectedConfig{group, "selectedConfig", isAState};
inline constexpr Key<Int>    amountOfConfigs{group, "amountOfConfigs", isAState};

// The chosen record of each family.
inline constexpr Key<Int>    textSelectedConfig{group, "textSelectedConfig", isAState};
inline constexpr Key<Int>    musicSelectedConfig{group, "musicSelectedConfig", isAState};
inline constexpr Key<Int>    imageSelectedConfig{group, "imageSelectedConfig", isAState};
inline constexpr Key<Int>    batterySelectedConfig{group, "batterySelectedConfig", isAState};
inline constexpr Key<Int>    weatherSelectedConfig{group, "weatherSelectedConfig", isAState};
inline constexpr Key<Int>    clockSelectedConfig{group, "clockSelectedConfig", isAState};

// The records of each family.
inline constexpr Key<Data>   savedTextWidgetData{group, "savedTextWidgetData", readsAsDefault};
inline constexpr Key<Data>   savedMusicWidgetData{group, "savedMusicWidgetData", readsAsDefault};
inline constexpr Key<Data>   savedImageWidgetData{group, "savedImageWidgetData", readsAsDefault};
inline constexpr Key<Data>   savedBatteryWidgetData{group, "savedBatteryWidgetData", readsAsDefault};
inline constexpr Key<Data>   savedWeatherWidgetData{group, "savedWeatherWidgetData", readsAsDefault};
inline constexpr Key<Data>   savedClockWidgetData{group, "savedClockWidgetData", readsAsDefault};

// Settings.
inline constexpr Key<Bool>   quitIfWidgetClicked{group, "quitIfWidgetClicked", readsAsDefault, false};
inline constexpr Key<Bool>   storedWeatherTemperatureFormat{group, "storedWeatherTemperatureFormat", readsAsDefault, false};

// The font pickers and the plain date.
inline constexpr Key<String> fontPicked{group, "fontPicked", isAState};
inline constexpr Key<Int>    fontSize{group, "fontSize", isAState, 18};
inline constexpr Key<String> timeFontPicked{group, "timeFontPicked", isAState};
inline constexpr Key<Int>    timeFontSize{group, "timeFontSize", isAState};
inline constexpr Key<String> dateFontPicked{group, "dateFontPicked", isAState};
inline constexpr Key<Int>    dateFontSize{group, "dateFontSize", isAState};
inline constexpr Key<String> dateColour{group, "dateColour", readsAsDefault, ""};

// The solid background.
inline constexpr Key<String> backgroundSolid{group, "backgroundSolid", readsAsDefault, ""};
inline constexpr Key<Bool>   solidEnabled{group, "solidEnabled", isAState};

// Weather.
inline constexpr Key<String> storedWeatherImage{group, "storedWeatherImage", isAState};
inline constexpr Key<String> storedWeatherTemperature{group, "storedWeatherTemperature", isAState};
inline constexpr Key<Double> storedWeatherTemperatureRaw{group, "storedWeatherTemperatureRaw", readsAsDefault, 0.0};
inline constexpr Key<String> storedCurrentWeatherDescription{group, "storedCurrentWeatherDescription", isAState};
inline constexpr Key<String> storedCurrentWeatherComplexDescription{group, "storedCurrentWeatherComplexDescription", isAState};
inline constexpr Key<String> storedCityName{group, "storedCityName", isAState};
inline constexpr Key<Double> storedHumidity{group, "storedHumidity", isAState};
inline constexpr Key<Double> storedPressure{group, "storedPressure", isAState};
inline constexpr Key<Int>    storedUVIndex{group, "storedUVIndex", isAState};
inline constexpr Key<Double> lastKnownLat{group, "lastKnownLat", isAState};
inline constexpr Key<Double> lastKnownLon{group, "lastKnownLon", isAState};
inline constexpr Key<Double> nextCurrentTempUpdateTime{group, "nextCurrentTempUpdateTime", isAState};
inline constexpr Key<Double> nextRainDataUpdateTime{group, "nextRainDataUpdateTime", isAState};
inline constexpr Key<Double> nextWeekDataUpdateTime{group, "nextWeekDataUpdateTime", isAState};
inline constexpr Key<Data>   currentLocationRainData{group, "currentLocationRainData", isAState};

// The application's own.
inline constexpr Key<String> destination{standard, "destination", isAState};
inline constexpr Key<String> lastUsedAppVersion{standard, "last_used_app_version", isAState};
inline constexpr Key<Bool>   betaEnrollment{standard, "beta_enrollment", isAState};
inline constexpr Key<Date>   appReviewAskDate{standard, "appReviewAskDate", isAState};
inline constexpr Key<Int>    appStartUpsCountKey{standard, "appStartUpsCountKey", readsAsDefault};
inline constexpr Key<Bool>   reviewClosed{standard, "reviewClosed", isAState};
inline constexpr Key<Int>    styleInTheMaking{standard, "styleInTheMaking", isAState};
inline constexpr Key<String> windowPlace{standard, "windowPlace", isAState};
inline constexpr Key<String> pictureFolder{standard, "pictureFolder", isAState};
inline constexpr Key<String> saveFolder{standard, "saveFolder", isAState};

// clang-format on

/// The keys of the group store, in the order of the documentation.
inline constexpr std::tuple groupKeys{selectedConfig,
                                      amountOfConfigs,
                                      textSelectedConfig,
                                      musicSelectedConfig,
                                      imageSelectedConfig,
                                      batterySelectedConfig,
                                      weatherSelectedConfig,
                                      clockSelectedConfig,
                                      savedTextWidgetData,
                                      savedMusicWidgetData,
                                      savedImageWidgetData,
                                      savedBatteryWidgetData,
                                      savedWeatherWidgetData,
                                      savedClockWidgetData,
                                      quitIfWidgetClicked,
                                      storedWeatherTemperatureFormat,
                                      fontPicked,
                                      fontSize,
                                      timeFontPicked,
                                      timeFontSize,
                                      dateFontPicked,
                                      dateFontSize,
                                      dateColour,
                                      backgroundSolid,
                                      solidEnabled,
                                      storedWeatherImage,
                                      storedWeatherTemperature,
                                      storedWeatherTemperatureRaw,
                                      storedCurrentWeatherDescription,
                                      storedCurrentWeatherComplexDescription,
                                      storedCityName,
                                      storedHumidity,
                                      storedPressure,
                                      storedUVIndex,
                                      lastKnownLat,
                                      lastKnownLon,
                                      nextCurrentTempUpdateTime,
                                      nextRainDataUpdateTime,
                                      nextWeekDataUpdateTime,
                                      currentLocationRainData};

/// The keys of the standard defaults.
inline constexpr std::tuple standardKeys{
    destination,  lastUsedAppVersion, betaEnrollment, appReviewAskDate, appStartUpsCountKey,
    reviewClosed, styleInTheMaking,   windowPlace,    pictureFolder,    saveFolder};

} // namespace vitrelle::keys
