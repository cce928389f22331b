// The small stack layout that faces are told in: views are offered room, say how much of it they
// take, and are placed in it. The result is a display list.
#pragma once

#include "core/platform/DisplayList.h"
#include "core/platform/Drawing.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace vitrelle {

/// Where in the room around it a smaller thing lies, in each direction.
enum class Place { start, centre, end };

enum class Axis { horizontal, vertical };

struct Alignment {
  Place horizontal = Place::centre;
  Place vertical = Place::centre;
};

/// Points.
struct Insets {
  double top = 0;
  double leading = 0;
  double bottom = 0;
  double trailing = 0;
};

/// The system's padding where none is told.
inline constexpr double defaultPadding = 16;
/// The system's distance between the parts of a stack where none is told.
inline constexpr double defaultSpacing = 8;

/// A part of a face: a cheap, immutable value.
class View final {
 public:
  /// How a view takes room and draws. Sizes may be infinite in what is offered, never in what is
  /// taken.
  class Node {
   public:
    virtual ~Node() = default;
    virtual PointSize size(const Drawing& drawing, const PointSize& room) const = 0;
    /// In a box of the size that it took of the room.
    virtual void draw(const Drawing& drawing, const PointRect& box, const PointSize& room,
                      DisplayList& to) const = 0;
    /// Whether it takes all the room that there is in a direction.
    virtual bool isFlexible(Axis) const { return false; }
    /// Whether all its words are shown in the room, and none is broken.
    virtual bool isWhole(const Drawing&, const PointSize&) const { return true; }
    /// Whether it does nothing but keep other parts of a stack apart: it has what they leave.
    virtual bool isSpacer() const { return false; }
  };

  explicit View(std::shared_ptr<const Node> node) : node_(std::move(node)) {}
  const Node& node() const { return *node_; }

 private:
  std::shared_ptr<const Node> node_;
};

/// Takes the room of its words, and no more lines than the room has.
View text(std::string words, Font font, const PlatformColour& colour,
          TextAlignment alignment = TextAlignment::leading);
/// A square of the size.
View symbol(std::string name, double size, const PlatformColour& colour, int weight = 400);
/// In the colours of what it shows; whatever has none of its own is in the colour given.
View symbolInOwnColours(std::string name, double size, const PlatformColour& colour,
                        int weight = 400);
/// A shape takes all the room it is offered, 10 points where that is infinite.
View filled(std::function<Path(const PointRect&)> shape, const PlatformColour& colour);
View stroked(std::function<Path(const PointRect&)> shape, const StrokeStyle& style,
             const PlatformColour& colour);
/// The gradient's ends are in units of the shape's room: its top left is 0, its bottom right is 1.
View filled(std::function<Path(const PointRect&)> shape, const LinearGradient& gradient);
View stroked(std::function<Path(const PointRect&)> shape, const StrokeStyle& style,
             const LinearGradient& gradient);
/// Stretched to all the room it is offered.
View picture(const Image& image, double cornerRadius = 0);
/// Nothing, as long as the stack allows.
View spacer();

/// A stack offers each of its parts an equal share of the room that is left, and begins with those
/// that adapt the least, so that what they do not need goes to the others.
View hstack(std::vector<View> parts, Place vertical = Place::centre,
            double spacing = defaultSpacing);
View vstack(std::vector<View> parts, Place horizontal = Place::centre,
            double spacing = defaultSpacing);
/// The first lies at the back.
View zstack(std::vector<View> parts, const Alignment& alignment = {});

View padded(const View& view, const Insets& insets);
/// A side that is not told is that of the view.
View framed(const View& view, std::optional<double> width, std::optional<double> height,
            const Alignment& alignment = {});
View shadowed(const View& view, const Shadow& shadow);
View faded(const View& view, double opacity);
/// Clockwise about its middle. Takes the room that it took before.
View rotated(const View& view, double radians);
View scaled(const View& view, double factor);
/// As large as it is told where the room shows all its words, else just so small that it does;
/// never smaller than the factor.
View shrunkToFit(const View& view, double least);

/// The view in the middle of a frame whose top left corner is the origin.
DisplayList layOut(const View& view, const PointSize& frame, const Drawing& drawing);

} // namespace vitrelle
