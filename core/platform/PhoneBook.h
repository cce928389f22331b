// The phones that this host can stand for, and the one it stands for now.
#pragma once

#include "core/platform/Device.h"
#include "core/platform/Result.h"

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

/// What one situation of a phone consists of.
struct PhoneChoice {
  std::string identifier;
  OsVersion os;
  bool zoomed = false;
};

struct PhoneBook {
  std::function<std::vector<PhoneModel>()> models;
  /// The phone that `device` answers for.
  std::function<PhoneChoice()> current;
  /// Makes it the phone of later programs that are not told otherwise.
  std::function<Status(const PhoneChoice&)> save;
};

} // namespace vitrelle
