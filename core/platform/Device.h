// The phone: which one it is, what it runs, how its screen is set.
#pragma once

#include "core/platform/Geometry.h"

#include <array>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>

namespace vitrelle {

/// The `machine` field of `uname`, as it stands in memory: zero bytes are filling.
using MachineField = std::array<signed char, 256>;

struct OsVersion {
  std::int64_t major = 0;
  std::int64_t minor = 0;
  std::int64_t patch = 0;
  auto operator<=>(const OsVersion&) const = default;
};

struct Device {
  std::function<MachineField()> machine;
  std::function<std::optional<std::string>(const std::string& name)> environment;
  std::function<bool(const OsVersion&)> isOperatingSystemAtLeast;

  /// The main screen. Its scale is less than its native scale while the display is zoomed.
  std::function<PointSize()> screenBounds;
  std::function<double()> screenScale;
  std::function<double()> screenNativeScale;

  /// The appearance that screens are drawn in now, as the platform numbers it: 1 light, 2 dark.
  std::function<std::int64_t()> userInterfaceStyle;
};

} // namespace vitrelle
