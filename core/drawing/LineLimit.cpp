#include "core/drawing/LineLimit.h"

#include <limits>
#include <utility>

namespace vitrelle {

namespace {

class LimitedNode final : public View::Node {
 public:
  LimitedNode(View text, int most) : text_(std::move(text)), most_(most) {}

  PointSize size(const Drawing& drawing, const PointSize& room) const override {
    return text_.node().size(drawing, limited(drawing, room));
  }
  void draw(const Drawing& drawing, const PointRect& box, const PointSize& room,
            DisplayList& to) const override {
    text_.node().draw(drawing, box, limited(drawing, room), to);
  }
  bool isWhole(const Drawing& drawing, const PointSize& room) const override {
    if (most_ == 1) return inOneLine(drawing).width <= room.width;
    return text_.node().isWhole(drawing, limited(drawing, room));
  }

 private:
  PointSize inOneLine(const Drawing& drawing) const {
    return text_.node().size(drawing, {std::numeric_limits<double>::infinity(), 0});
  }
  PointSize limited(const Drawing& drawing, const PointSize& room) const {
    const double height = inOneLine(drawing).height * most_;
    const bool fits = text_.node().size(drawing, room).height <= height;
    return fits ? room : PointSize{room.width, height};
  }

  View text_;
  int most_;
};

} // namespace

View inLines(const View& text, int most) {
  return View(std::make_shared<LimitedNode>(text, most));
}

} // namespace vitrelle
