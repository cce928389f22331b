#include "core/drawing/View.h"

#include <utility>

namespace vitrelle {

namespace {

using Node = View::Node;

class ShrunkNode final : public Node {
 public:
  ShrunkNode(View view, double least) : view_(std::move(view)), least_(least) {}
  PointSize size(const Drawing& drawing, const PointSize& room) const override {
    const double factor = factorIn(drawing, room);
    const PointSize own = view_.node().size(drawing, enlarged(room, factor));
    return {own.width * factor, own.height * factor};
  }
  void draw(const Drawing& drawing, const PointRect& box, const PointSize& room,
            DisplayList& to) const override {
    const double factor = factorIn(drawing, room);
    if (factor >= 1) return view_.node().draw(drawing, box, room, to);
    DrawnGroup group{.transform = {.a = factor, .d = factor, .x = box.x, .y = box.y}, .items = {}};
    view_.node().draw(drawing, {0, 0, box.width / factor, box.height / factor},
                      enlarged(room, factor), group.items);
    to.push_back({std::move(group)});
  }
  bool isFlexible(Axis axis) const override { return view_.node().isFlexible(axis); }
  bool isWhole(const Drawing& drawing, const PointSize& room) const override {
    return isWholeAt(least_, drawing, room);
  }

 private:
  static PointSize enlarged(const PointSize& room, double factor) {
    return {room.width / factor, room.height / factor};
  }
  bool isWholeAt(double factor, const Drawing& drawing, const PointSize& room) const {
    return view_.node().isWhole(drawing, enlarged(room, factor));
  }
  double factorIn(const Drawing& drawing, const PointSize& room) const {
    if (least_ >= 1 || isWholeAt(1, drawing, room)) return 1;
    double fits = least_;
    if (!isWholeAt(fits, drawing, room)) return fits; // it is cut in its own room too
    double cut = 1;
    while (cut - fits > 0.01) {
      const double middle = (cut + fits) / 2;
      (isWholeAt(middle, drawing, room) ? fits : cut) = middle;
    }
    return fits;
  }
  View view_;
  double least_;
};

} // namespace

View shrunkToFit(const View& view, double least) {
  return View(std::make_shared<ShrunkNode>(view, least));
}

} // namespace vitrelle
