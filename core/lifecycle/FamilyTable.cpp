#include "core/lifecycle/FamilyTable.h"

#include "core/platform/FatalError.h"

#include <algorithm>
#include <string>

namespace vitrelle {

const std::array<FamilyDescription, 6> familyTable{{
    {.name = "text",
     .entryScreen = "ModernCustomTextView",
     .stylesScreen = "",
     .setupScreen = "ModernCustomTextSetupView",
     .secondScreen = "ModernCustomTextColourView",
     .galleryScreen = "ModernCustomTextGalleryView",
     .assignScreen = "ModernCustomTextAssignView",
     .previewScreen = "ModernCustomTextPreviewView",
     .entryTitle = "Text Widget",
     .entrySymbol = "text.bubble.fill",
     .overLimitTitle = "Cannot Create Text Widget Style",
     .overLimitMessage = "You've hit the max amount of Text Widget Styles you can make, please "
                         "edit an existing one.",
     .noPreviewMessage = "Please Create a Text Widget Style.",
     .galleryTitle = "Text Widget Gallery",
     .emptyGallery = "No Text Widget Styles",
     .assignItem = "Assign to Vitrelle Style",
     .assignTitle = "Link Time Style",
     .assignRefusal = "This Vitrelle Style already has a Text Style linked to it, please pick "
                      "another Vitrelle Style."},
    {.name = "music",
     .gateScreen = "AlphaViewForNowPlaying",
     .entryScreen = "CustomNowPlayingView",
     .stylesScreen = "",
     .setupScreen = "CustomNowPlayingConfig",
     .secondScreen = "CustomNowPlayingColourConfig",
     .galleryScreen = "CustomNowPlayingGalleryView",
     .assignScreen = "CustomNowPlayingAssignView",
     .previewScreen = "CustomNowPlayingPreviewView",
     .entryTitle = "Music Widget",
     .entrySymbol = "waveform",
     .overLimitTitle = "Cannot Create Weather Widget Style",
     .overLimitMessage = "You've hit the max amount of Weather Widget Styles you can make, please "
                         "edit an existing one.",
     .noPreviewMessage = "Please Create a Weather Widget Style.",
     .galleryTitle = "Music Widget Gallery",
     .emptyGallery = "No Music Widget Styles",
     .assignItem = "Link to Vitrelle Style",
     .assignTitle = "Link Weather Style",
     .assignRefusal = "This Vitrelle Style already has a Music Style linked to it, please pick "
                      "another Vitrelle Style."},
    {.name = "image",
     .entryScreen = "CustomImageView",
     .stylesScreen = "",
     .setupScreen = "CustomImageSetupView",
     .secondScreen = "CustomImagePositionView",
     .galleryScreen = "CustomImageGalleryView",
     .assignScreen = "CustomImageAssignView",
     .previewScreen = "CustomImagePreviewView",
     .entryTitle = "Image Widget",
     .entrySymbol = "photo.fill",
     .overLimitTitle = "Cannot Create Image Widget Style",
     .overLimitMessage = "You've hit the max amount of Image Widget Styles you can make, please "
                         "edit an existing one.",
     .noPreviewMessage = "Please Create a Image Widget Style.",
     .galleryTitle = "Image Widget Gallery",
     .emptyGallery = "No Image Widget Styles",
     .assignItem = "Assign to Vitrelle Style",
     .assignTitle = "Link Image Style",
     .assignRefusal = "This Vitrelle Style already has an Image Style linked to it, please pick "
                      "another Vitrelle Style.",
     .secondTitle = familyWords::setupTitle,
     .secondSymbol = familyWords::setupSymbol},
    {.name = "battery",
     .entryScreen = "ModernCustomBatteryView",
     .stylesScreen = "",
     .setupScreen = "ModernBatteryStylesEditorView",
     .secondScreen = "ModernBatteryColourEditorView",
     .galleryScreen = "ModernBatteryGalleryView",
     .assignScreen = "ModernBatteryAssignView",
     .previewScreen = "ModernBatteryPreviewView",
     .entryTitle = "Battery Widget",
     .entrySymbol = "battery.100",
     .overLimitTitle = "Cannot Create Battery Widget Style",
     .overLimitMessage = "You've hit the max amount of Battery Widget Styles you can make, please "
                         "edit an existing one.",
     .noPreviewMessage = "Please Create a Battery Widget Style.",
     .galleryTitle = "Battery Widget Gallery",
     .emptyGallery = "No Battery Widget Styles",
     .assignItem = "Assign to Vitrelle Style",
     .assignTitle = "Link Battery Style",
     .assignRefusal = "This Vitrelle Style already has a Battery Style linked to it, please pick "
                      "another Vitrelle Style."},
    {.name = "weather",
     .gateScreen = "AlphaWeatherView",
     .entryScreen = "CustomWeatherView",
     .stylesScreen = "CustomWeatherStylesView",
     .setupScreen = "CustomWeatherStylesEditorView",
     .secondScreen = "CustomWeatherColourEditorView",
     .galleryScreen = "CustomWeatherGalleryView",
     .assignScreen = "CustomWeatherAssignView",
     .previewScreen = "CustomWeatherPreviewView",
     .entryTitle = "Weather Widget",
     .entrySymbol = "cloud.sun.fill",
     .overLimitTitle = "Cannot Create Weather Widget Style",
     .overLimitMessage = "You've hit the max amount of Weather Widget Styles you can make, please "
                         "edit an existing one.",
     .noPreviewMessage = "Please Create a Weather Widget Style.",
     .galleryTitle = "Weather Widget Gallery",
     .emptyGallery = "No Weather Widget Styles",
     .assignItem = "Assign to Vitrelle Style",
     .assignTitle = "Link Weather Style",
     .assignRefusal = "This Vitrelle Style already has a Weather Style linked to it, please pick "
                      "another Vitrelle Style."},
    {.name = "clock",
     .entryScreen = "ModernTimeView",
     .stylesScreen = "ModernTimeStylesView",
     .setupScreen = "ModernTimeCreateView",
     .secondScreen = "ModernTimeColourView",
     .galleryScreen = "ModernTimeGalleryView",
     .assignScreen = "ModernTimeAssignView",
     .previewScreen = "ModernClockPreviewView",
     .entryTitle = "Time Widget",
     .entrySymbol = "clock.fill",
     .overLimitTitle = "Cannot Create Time Widget Style",
     .overLimitMessage = "You've hit the max amount of Time Widget Styles you can make, please "
                         "edit an existing one.",
     .noPreviewMessage = "Please Create a Time Widget Style.",
     .galleryTitle = "Time Widget Gallery",
     .emptyGallery = "No Time Widget Styles",
     .assignItem = "Assign to Vitrelle Style",
     .assignTitle = "Link Time Style",
     .assignRefusal = "This Vitrelle Style already has an Time Style linked to it, please pick "
                      "another Vitrelle Style."},
}};

const FamilyDescription& familyDescription(std::string_view name) {
  const auto* const found = std::ranges::find(familyTable, name, &FamilyDescription::name);
  if (found == familyTable.end()) fatalError("there is no widget family " + std::string(name));
  return *found;
}

} // namespace vitrelle
