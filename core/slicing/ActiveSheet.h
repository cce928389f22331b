// The sheets and alerts that the root and the intake screens can have open.
#pragma once

#include <cstdint>

namespace vitrelle {

/// The numbers are stable: links carry them.
enum class ActiveSheet : std::int64_t {
  photoPicker = 0,
  settings = 1,
  onboarding = 2,
  knowledgeCenter = 3,
  infoView = 4,
  widgetCentre = 5,
  perspectiveZoom = 6,
  widgetRefresh = 7,
  widgetPlaceholder = 8,
  widgetAppleDumb = 9,
  invalid = 10,
};

/// Only the first is ever set, and nothing presents it.
enum class ActiveAlert { incompatible, incorrectSize, success };

/// Set at launch; nothing presents it.
enum class ActivePopoverContent { whatsNew, appStoreRating };

/// The type name of the screen that a sheet shows.
constexpr const char* screenName(ActiveSheet sheet) {
  switch (sheet) {
  case ActiveSheet::photoPicker:
    return "ImagePicker";
  case ActiveSheet::settings:
    return "WidgetSettingsView";
  case ActiveSheet::onboarding:
    return "OnboardingView";
  case ActiveSheet::knowledgeCenter:
    return "ModernKnowledgeCentre";
  case ActiveSheet::infoView:
    return "ModernInfoCentre";
  case ActiveSheet::widgetCentre:
    return "ModernWidgetCentre";
  case ActiveSheet::perspectiveZoom:
    return "PerspectiveZoomDescription";
  case ActiveSheet::widgetRefresh:
    return "UpdateWidgetDescription";
  case ActiveSheet::widgetPlaceholder:
    return "WidgetShowingNothingDescription";
  case ActiveSheet::widgetAppleDumb:
    return "WidgetNameDescription";
  case ActiveSheet::invalid:
    return "InvalidDeepLink";
  }
  return "";
}

} // namespace vitrelle
