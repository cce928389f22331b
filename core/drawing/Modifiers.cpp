#include "core/drawing/Placement.h"
#include "core/drawing/View.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace vitrelle {

namespace {

using Node = View::Node;

class PaddedNode final : public Node {
 public:
  PaddedNode(View view, const Insets& insets) : view_(std::move(view)), insets_(insets) {}
  PointSize size(const Drawing& drawing, const PointSize& room) const override {
    const PointSize own = view_.node().size(drawing, within(room));
    return {own.width + across(), own.height + down()};
  }
  void draw(const Drawing& drawing, const PointRect& box, const PointSize& room,
            DisplayList& to) const override {
    const PointSize own = within({box.width, box.height});
    view_.node().draw(drawing,
                      {box.x + insets_.leading, box.y + insets_.top, own.width, own.height},
                      within(room), to);
  }
  bool isFlexible(Axis axis) const override { return view_.node().isFlexible(axis); }
  bool isWhole(const Drawing& drawing, const PointSize& room) const override {
    return view_.node().isWhole(drawing, within(room));
  }

 private:
  double across() const { return insets_.leading + insets_.trailing; }
  double down() const { return insets_.top + insets_.bottom; }
  PointSize within(const PointSize& room) const {
    return {std::max(room.width - across(), 0.0), std::max(room.height - down(), 0.0)};
  }
  View view_;
  Insets insets_;
};

class FramedNode final : public Node {
 public:
  FramedNode(View view, std::optional<double> width, std::optional<double> height,
             const Alignment& alignment)
      : view_(std::move(view)), width_(width), height_(height), alignment_(alignment) {}
  PointSize size(const Drawing& drawing, const PointSize& room) const override {
    if (width_ && height_) return {*width_, *height_};
    const PointSize own = view_.node().size(drawing, within(room));
    return {width_.value_or(own.width), height_.value_or(own.height)};
  }
  void draw(const Drawing& drawing, const PointRect& box, const PointSize& room,
            DisplayList& to) const override {
    const PointSize own = view_.node().size(drawing, within(room));
    view_.node().draw(drawing, aligned(alignment_, box, own), within(room), to);
  }
  bool isFlexible(Axis axis) const override {
    const bool told = axis == Axis::horizontal ? width_.has_value() : height_.has_value();
    return !told && view_.node().isFlexible(axis);
  }
  bool isWhole(const Drawing& drawing, const PointSize& room) const override {
    return view_.node().isWhole(drawing, within(room));
  }

 private:
  PointSize within(const PointSize& room) const {
    return {width_.value_or(room.width), height_.value_or(room.height)};
  }
  View view_;
  std::optional<double> width_;
  std::optional<double> height_;
  Alignment alignment_;
};

/// Draws a view as a group, and takes the room that the view does.
class GroupNode final : public Node {
 public:
  GroupNode(View view, std::function<DrawnGroup(const PointRect& box)> group)
      : view_(std::move(view)), group_(std::move(group)) {}
  PointSize size(const Drawing& drawing, const PointSize& room) const override {
    return view_.node().size(drawing, room);
  }
  void draw(const Drawing& drawing, const PointRect& box, const PointSize& room,
            DisplayList& to) const override {
    DrawnGroup group = group_(box);
    view_.node().draw(drawing, box, room, group.items);
    to.push_back({std::move(group)});
  }
  bool isFlexible(Axis axis) const override { return view_.node().isFlexible(axis); }
  bool isWhole(const Drawing& drawing, const PointSize& room) const override {
    return view_.node().isWhole(drawing, room);
  }

 private:
  View view_;
  std::function<DrawnGroup(const PointRect&)> group_;
};

/// The linear part of the transform, about the middle of the box.
Transform aboutMiddle(const PointRect& box, double a, double b, double c, double d) {
  const double x = box.x + box.width / 2;
  const double y = box.y + box.height / 2;
  return {a, b, c, d, x - a * x - c * y, y - b * x - d * y};
}

} // namespace

View padded(const View& view, const Insets& insets) {
  return View(std::make_shared<PaddedNode>(view, insets));
}

View framed(const View& view, std::optional<double> width, std::optional<double> height,
            const Alignment& alignment) {
  return View(std::make_shared<FramedNode>(view, width, height, alignment));
}

View shadowed(const View& view, const Shadow& shadow) {
  return View(std::make_shared<GroupNode>(
      view, [shadow](const PointRect&) { return DrawnGroup{.shadow = shadow, .items = {}}; }));
}

View faded(const View& view, double opacity) {
  return View(std::make_shared<GroupNode>(
      view, [opacity](const PointRect&) { return DrawnGroup{.opacity = opacity, .items = {}}; }));
}

View rotated(const View& view, double radians) {
  return View(std::make_shared<GroupNode>(view, [radians](const PointRect& box) {
    const double cosine = std::cos(radians);
    const double sine = std::sin(radians);
    return DrawnGroup{.transform = aboutMiddle(box, cosine, sine, -sine, cosine), .items = {}};
  }));
}

View scaled(const View& view, double factor) {
  return View(std::make_shared<GroupNode>(view, [factor](const PointRect& box) {
    return DrawnGroup{.transform = aboutMiddle(box, factor, 0, 0, factor), .items = {}};
  }));
}

} // namespace vitrelle
