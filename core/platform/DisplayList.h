// What a picture is made of, in the order of drawing: outlines, texts, symbols and images, in
// points, origin top left, y down. Every face of a widget is told in this way, so that whoever
// draws one gets the same pixels.
#pragma once

#include "core/platform/Geometry.h"
#include "core/platform/Image.h"
#include "core/platform/Path.h"
#include "core/platform/PlatformColour.h"

#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace vitrelle {

enum class LineCap { butt, round, square };
enum class LineJoin { miter, round, bevel };

struct StrokeStyle {
  double width = 1;
  LineCap cap = LineCap::butt;
  LineJoin join = LineJoin::miter;
  double miterLimit = 10; ///< in line widths
  bool operator==(const StrokeStyle&) const = default;
};

struct Font {
  std::string name = {};   ///< PostScript name; the system's face when empty or not installed
  double size = 17;        ///< points
  int weight = 400;        ///< 400 the face as it is, 600 its family's semibold, 700 bold
  bool evenDigits = false; ///< each in a cell as wide as the widest, so that a clock stands still
  bool operator==(const Font&) const = default;
};

enum class TextAlignment { leading, centre };

struct GradientStop {
  double at = 0; ///< of the way from start to end
  PlatformColour colour = {};
  bool operator==(const GradientStop&) const = default;
};

/// Colours along a line; beyond its ends those of the ends go on.
struct LinearGradient {
  std::vector<GradientStop> stops; ///< ascending, from 0 to 1; nothing is drawn without any
  PathPoint start = {0, 0};
  PathPoint end = {0, 1};
  bool operator==(const LinearGradient&) const = default;
};

struct DrawnPath {
  Path path = {};
  FillRule rule = FillRule::nonZero;
  std::optional<StrokeStyle> stroke = std::nullopt; ///< none fills the path
  PlatformColour colour = {};
  std::optional<LinearGradient> gradient = std::nullopt; ///< instead of the colour
  bool operator==(const DrawnPath&) const = default;
};

/// Broken into lines where the room is too narrow; what does not fit its height ends in "…".
struct DrawnText {
  std::string text = {}; ///< UTF-8
  Font font = {};
  TextAlignment alignment = TextAlignment::leading; ///< of several lines: leading is by direction
  PlatformColour colour = {};
  PointRect box = {};  ///< what the text takes of the room
  PointSize room = {}; ///< breaking lines anew in the box alone might give others
  bool operator==(const DrawnText&) const = default;
};

/// Fitted into the middle of its box.
struct DrawnSymbol {
  std::string name = {};
  int weight = 400;
  PlatformColour colour = {};
  PointRect box = {};
  bool ownColours = false; ///< the colour is then for what has none of its own
  bool operator==(const DrawnSymbol&) const = default;
};

/// Stretched to its box.
struct DrawnImage {
  Image image;
  PointRect box = {};
  Path outline = {}; ///< what lies outside is left out; the whole box when empty
  bool operator==(const DrawnImage&) const = default;
};

struct Shadow {
  PlatformColour colour = {};
  double radius = 0; ///< standard deviation of the blur; 0 is a hard shadow
  double x = 0;
  double y = 0;
  bool operator==(const Shadow&) const = default;
};

/// x' = a x + c y + x, y' = b x + d y + y.
struct Transform {
  double a = 1;
  double b = 0;
  double c = 0;
  double d = 1;
  double x = 0;
  double y = 0;
  bool operator==(const Transform&) const = default;
};

struct DisplayItem;
using DisplayList = std::vector<DisplayItem>;

/// Drawn as one: the transform first, then the shadow of all that is in it, then the opacity.
struct DrawnGroup {
  Transform transform = {};
  double opacity = 1;
  std::optional<Shadow> shadow = std::nullopt;
  DisplayList items;
  bool operator==(const DrawnGroup& other) const;
};

struct DisplayItem {
  std::variant<DrawnPath, DrawnText, DrawnSymbol, DrawnImage, DrawnGroup> content;
  bool operator==(const DisplayItem&) const = default;
};

inline bool DrawnGroup::operator==(const DrawnGroup& other) const {
  return transform == other.transform && opacity == other.opacity && shadow == other.shadow &&
         items == other.items;
}

} // namespace vitrelle
