// The phones that this host can stand for, and the one it stands for now.
#pragma once

#include "core/platform/Device.h"
#include "core/platform/Result.h"
#include "core/platform/Subscription.h"

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace vitrelle {

/// A screen setting: bounds in points, and the two scales in pixels per point. A screenshot has
/// bounds times scale pixels.
struct ScreenMode {
  PointSize bounds;
  double scale = 0;
  double nativeScale = 0;
};

/// One kind of phone.
struct PhoneModel {
  std::string name;                     ///< marketing name, "iPhone 15 Pro"
  std::vector<std::string> identifiers; ///< machine identifiers, the usual one first
  ScreenMode standard;
  ScreenMode zoomed;
};

enum class AppearanceChoice : std::uint8_t {
  desktop, ///< as the desktop is, light where it does not say
  light,
  dark,
};

/// What one situation of a phone consists of.
struct PhoneChoice {
  std::string identifier;
  OsVersion os;
  bool zoomed = false;
  AppearanceChoice appearance = AppearanceChoice::desktop;
  bool operator==(const PhoneChoice&) const = default;
};

struct PhoneBook {
  std::function<std::vector<PhoneModel>()> models;
  /// The phone that `device` answers for.
  std::function<PhoneChoice()> current;
  /// Makes it the phone of this program at once, and of later ones that are not told otherwise.
  /// Fails where it can't be kept for those.
  std::function<Status(const PhoneChoice&)> save;
  /// Calls when `device` has begun to answer for another choice. Not called with the present one.
  std::function<Subscription(std::function<void(const PhoneChoice&)> subscriber)> watch;
};

} // namespace vitrelle
