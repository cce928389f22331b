// The settings that all widgets share: what a tap on one does, the unit of temperatures, and a
// redraw of them all by hand. What is changed here is stored at once.
#pragma once

#include "core/platform/Platform.h"
#include "core/platform/Screen.h"
#include "core/store/StoredValue.h"

#include <array>
#include <string_view>

namespace vitrelle {

class WidgetSettingsView final : public Screen {
 public:
  static constexpr std::string_view title = "Widget Settings";
  static constexpr std::string_view symbol = "gearshape.2.fill";
  static constexpr std::string_view betaSymbol = "hammer";
  static constexpr std::string_view betaNote =
      "The below setting has been blocked during the beta testing stage as it will interfere with "
      "logs.";
  static constexpr std::string_view quitTitle = "Quit App on Widget Tap";
  static constexpr std::string_view unitTitle = "Temperature Unit";
  /// Of false and true. The mark is the masculine ordinal indicator, as in all temperatures.
  static constexpr std::array<std::string_view, 2> units{"ºC", "ºF"};
  static constexpr std::string_view refreshTitle = "Refresh Widgets";
  static constexpr std::string_view refreshSymbol = "arrow.clockwise";

  /// The platform must outlive it.
  explicit WidgetSettingsView(const Platform& platform);

  bool quitIfWidgetClicked() const { return quit_.getOrDefault(); }
  /// Testers' builds show what is stored, and keep it.
  bool isQuitBlocked() const { return isBeta_; }
  void setQuitIfWidgetClicked(bool quit);
  /// Whether temperatures are in Fahrenheit.
  bool weatherTempFormat() const { return format_.getOrDefault(); }
  void setWeatherTempFormat(bool fahrenheit);
  void refreshWidgets() const;

 private:
  const Platform& platform_;
  bool isBeta_;
  StoredValue<bool> quit_;
  StoredValue<bool> format_;
  std::array<Subscription, 2> bindings_; ///< last, for they call this screen
};

} // namespace vitrelle
