#include "core/drawing/View.h"

#include "core/drawing/Gradients.h"
#include "core/drawing/Shapes.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace vitrelle {

namespace {

using Node = View::Node;

/// What a shape takes of endless room.
constexpr double shapeSide = 10;

double finite(double side) {
  return std::isfinite(side) ? std::max(side, 0.0) : shapeSide;
}

class SymbolNode final : public Node {
 public:
  SymbolNode(DrawnSymbol symbol, double size) : symbol_(std::move(symbol)), size_(size) {}
  PointSize size(const Drawing&, const PointSize&) const override { return {size_, size_}; }
  void draw(const Drawing&, const PointRect& box, const PointSize&,
            DisplayList& to) const override {
    DrawnSymbol symbol = symbol_;
    symbol.box = box;
    to.push_back({std::move(symbol)});
  }

 private:
  DrawnSymbol symbol_;
  double size_;
};

/// What takes all the room it is offered.
class StretchedNode : public Node {
 public:
  PointSize size(const Drawing&, const PointSize& room) const override {
    return {finite(room.width), finite(room.height)};
  }
  bool isFlexible(Axis) const override { return true; }
};

class ShapeNode final : public StretchedNode {
 public:
  ShapeNode(std::function<Path(const PointRect&)> shape, DrawnPath look)
      : shape_(std::move(shape)), look_(std::move(look)) {}
  void draw(const Drawing&, const PointRect& box, const PointSize&,
            DisplayList& to) const override {
    DrawnPath path = look_;
    path.path = shape_(box);
    if (path.gradient) path.gradient = stretched(std::move(*path.gradient), box);
    to.push_back({std::move(path)});
  }

 private:
  std::function<Path(const PointRect&)> shape_;
  DrawnPath look_;
};

class PictureNode final : public StretchedNode {
 public:
  PictureNode(Image image, double cornerRadius)
      : image_(std::move(image)), cornerRadius_(cornerRadius) {}
  void draw(const Drawing&, const PointRect& box, const PointSize&,
            DisplayList& to) const override {
    DrawnImage drawn{.image = image_, .box = box};
    if (cornerRadius_ > 0) drawn.outline = shapes::continuousRectangle(box, cornerRadius_);
    to.emplace_back().content = std::move(drawn); // g++ 12 warns of a moved item for no reason
  }

 private:
  Image image_;
  double cornerRadius_;
};

class SpacerNode final : public StretchedNode {
 public:
  PointSize size(const Drawing&, const PointSize& room) const override {
    return {std::isfinite(room.width) ? room.width : 0,
            std::isfinite(room.height) ? room.height : 0};
  }
  void draw(const Drawing&, const PointRect&, const PointSize&, DisplayList&) const override {}
  bool isSpacer() const override { return true; }
};

} // namespace

View symbol(std::string name, double size, const PlatformColour& colour, int weight) {
  return View(std::make_shared<SymbolNode>(
      DrawnSymbol{.name = std::move(name), .weight = weight, .colour = colour}, size));
}

View symbolInOwnColours(std::string name, double size, const PlatformColour& colour, int weight) {
  return View(std::make_shared<SymbolNode>(
      DrawnSymbol{.name = std::move(name), .weight = weight, .colour = colour, .ownColours = true},
      size));
}

View filled(std::function<Path(const PointRect&)> shape, const PlatformColour& colour) {
  return View(std::make_shared<ShapeNode>(std::move(shape), DrawnPath{.colour = colour}));
}

View stroked(std::function<Path(const PointRect&)> shape, const StrokeStyle& style,
             const PlatformColour& colour) {
  return View(
      std::make_shared<ShapeNode>(std::move(shape), DrawnPath{.stroke = style, .colour = colour}));
}

View filled(std::function<Path(const PointRect&)> shape, const LinearGradient& gradient) {
  return View(std::make_shared<ShapeNode>(std::move(shape), DrawnPath{.gradient = gradient}));
}

View stroked(std::function<Path(const PointRect&)> shape, const StrokeStyle& style,
             const LinearGradient& gradient) {
  return View(std::make_shared<ShapeNode>(std::move(shape),
                                          DrawnPath{.stroke = style, .gradient = gradient}));
}

View picture(const Image& image, double cornerRadius) {
  return View(std::make_shared<PictureNode>(image, cornerRadius));
}

View spacer() {
  return View(std::make_shared<SpacerNode>());
}

DisplayList layOut(const View& view, const PointSize& frame, const Drawing& drawing) {
  DisplayList list;
  framed(view, frame.width, frame.height)
      .node()
      .draw(drawing, {0, 0, frame.width, frame.height}, frame, list);
  return list;
}

} // namespace vitrelle
