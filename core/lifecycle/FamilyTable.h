// The six widget families as the shared screens tell them apart: the type names of their screens
// and every word and symbol. The keys of their records are in core/store/Family.h.
#pragma once

#include <array>
#include <cstddef>
#include <string_view>

namespace vitrelle {

/// A family holds no more widget styles than this, and they can't be removed.
inline constexpr std::size_t maximumWidgetStyles = 12;

struct FamilyDescription {
  std::string_view name; ///< as in the store's table

  std::string_view gateScreen = {}; ///< before the entry, where there is one
  std::string_view entryScreen;
  std::string_view stylesScreen; ///< on the way to the setup, where there is one
  std::string_view setupScreen;
  std::string_view secondScreen; ///< colours, or the picture's position
  std::string_view galleryScreen;
  std::string_view assignScreen;
  std::string_view previewScreen;

  std::string_view entryTitle;
  std::string_view entrySymbol;
  std::string_view overLimitTitle;
  std::string_view overLimitMessage;
  std::string_view noPreviewMessage;
  std::string_view galleryTitle;
  std::string_view emptyGallery;
  std::string_view assignItem; ///< of a tile's menu
  std::string_view assignTitle;
  std::string_view assignRefusal;

  /// Of the second step's screen; most edit colours there.
  std::string_view secondTitle = "Edit Colours";
  std::string_view secondSymbol = "paintpalette.fill";

  /// The screen with which the way into the family begins.
  constexpr std::string_view firstScreen() const {
    return gateScreen.empty() ? entryScreen : gateScreen;
  }
};

/// In the order of the store's table. Music speaks of weather, and Text links a time: the words
/// are kept as they are known.
extern const std::array<FamilyDescription, 6> familyTable;

/// A name that no family has is a fatal error.
const FamilyDescription& familyDescription(std::string_view name);

/// The words and symbols that all families share.
namespace familyWords {

inline constexpr std::string_view create = "Create";
inline constexpr std::string_view gallery = "Gallery";
inline constexpr std::string_view preview = "Preview";
inline constexpr std::string_view noPreviewTitle = "Cannot open Widget Preview";
inline constexpr std::string_view closeSymbol = "xmark.circle.fill";

inline constexpr std::string_view kindsTitle = "Widget Styles";
inline constexpr std::string_view kindsSymbol = "circle.hexagonpath.fill";
inline constexpr std::string_view kindsNote = "Pick a Style to get more options";

inline constexpr std::string_view setupTitle = "Edit Style";
inline constexpr std::string_view setupSymbol = "slider.horizontal.3";
inline constexpr std::string_view previewHeading = "Widget Preview";
inline constexpr std::string_view saveAndContinue = "Save and Continue";
inline constexpr std::string_view saveAndExit = "Save and Exit";

inline constexpr std::string_view loading = "Loading";
inline constexpr std::string_view gallerySymbol = "square.grid.2x2";
inline constexpr std::string_view galleryHint =
    "Haptic Touch each widget to edit Widget Style and/or link with Vitrelle Style.";
inline constexpr std::string_view galleryHintSymbol = "hand.tap";
inline constexpr std::string_view tickSymbol = "checkmark.circle.fill";
inline constexpr std::string_view editItem = "Edit Widget Style";
inline constexpr std::string_view editSymbol = "slider.horizontal.3";
inline constexpr std::string_view assignSymbol = "link";

inline constexpr std::string_view assignHeading = "Vitrelle Style";
inline constexpr std::string_view assignPicker = "Select Style";
inline constexpr std::string_view noStyle = "None";
inline constexpr std::string_view refusalTitle = "Cannot Assign to Style";

inline constexpr std::string_view previewButton = "Preview Widget Style";

} // namespace familyWords

} // namespace vitrelle
