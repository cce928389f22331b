// Every operation that the logic needs of the platform, gathered in one value. Composition roots
// build it with designated initialisers; an operation left out is a compile error.
#pragma once

#include "core/platform/Application.h"
#include "core/platform/BannerKit.h"
#include "core/platform/Battery.h"
#include "core/platform/Bundle.h"
#include "core/platform/DateTime.h"
#include "core/platform/DebugConsole.h"
#include "core/platform/Defaults.h"
#include "core/platform/Device.h"
#include "core/platform/Drawing.h"
#include "core/platform/Files.h"
#include "core/platform/Fonts.h"
#include "core/platform/Geocoder.h"
#include "core/platform/Haptics.h"
#include "core/platform/Identifiers.h"
#include "core/platform/Images.h"
#include "core/platform/Links.h"
#include "core/platform/Location.h"
#include "core/platform/LocationSettings.h"
#include "core/platform/MainQueue.h"
#include "core/platform/MusicPlayer.h"
#include "core/platform/NotificationCentre.h"
#include "core/platform/Pasteboard.h"
#include "core/platform/PhoneBook.h"
#include "core/platform/ReviewController.h"
#include "core/platform/SharedInstances.h"
#include "core/platform/Symbols.h"
#include "core/platform/WeatherService.h"
#include "core/platform/WidgetCenter.h"

namespace vitrelle {

struct Platform {
  Defaults defaults;
  Files files;
  Images images;
  Device device;
  PhoneBook phoneBook;
  WidgetCenter widgetCenter;
  Bundle bundle;
  DebugConsole debugConsole;
  MainQueue mainQueue;
  NotificationCentre notificationCentre;
  Application application;
  Links links;
  Haptics haptics;
  BannerKit bannerKit;
  Symbols symbols;
  Drawing drawing;
  Fonts fonts;
  DateTime dateTime;
  Battery battery;
  Location location;
  LocationSettings locationSettings;
  Geocoder geocoder;
  WeatherService weatherService;
  MusicPlayer musicPlayer;
  Pasteboard pasteboard;
  ReviewController reviewController;
  Identifiers identifiers;

  /// What is made once per platform, such as the device name.
  SharedInstances shared = {};
};

} // namespace vitrelle
