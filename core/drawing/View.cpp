#include "core/drawing/View.h"

#include "core/drawing/Gradients.h"
#include "core/drawing/Shapes.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>
#include <utility>

namespace vitrelle {

namespace {

using Node = View::Node;

/// What a shape takes of endless room.
constexpr double shapeSide = 10;

double finite(double side) {
  return std::isfinite(side) ? std::max(side, 0.0) : shapeSide;
}

double placed(Place place, double room, double taken) {
  switch (place) {
  case Place::start:
    return 0;
  case Place::centre:
    return (room - taken) / 2;
  case Place::end:
    return room - taken;
  }
  return 0;
}

PointRect aligned(const Alignment& alignment, const PointRect& box, const PointSize& own) {
  return {box.x + placed(alignment.horizontal, box.width, own.width),
          box.y + placed(alignment.vertical, box.height, own.height), own.width, own.height};
}

bool anyFlexible(const std::vector<View>& parts, Axis axis) {
  return std::ranges::any_of(parts,
                             [axis](const View& part) { return part.node().isFlexible(axis); });
}

/// Breaks wherever a line may end: at spaces, after hyphens and after each East Asian letter.
std::string eachOnALine(const std::string& text) {
  constexpr unsigned char firstEastAsian = 0xE3; // the first byte of U+3000 and what follows,
  constexpr unsigned char lastEastAsian = 0xED;  // to U+DFFF, in UTF-8
  std::string lines;
  int left = 0; // bytes of such a letter that are to come
  for (const char c : text) {
    const auto byte = static_cast<unsigned char>(c);
    if (byte >= firstEastAsian && byte <= lastEastAsian) left = 3;
    lines += c == ' ' ? '\n' : c;
    if (c == '-' || (left > 0 && --left == 0)) lines += '\n';
  }
  return lines;
}

class TextNode final : public Node {
 public:
  explicit TextNode(DrawnText text) : text_(std::move(text)) {}
  PointSize size(const Drawing& drawing, const PointSize& room) const override {
    return drawing.textSize(text_.text, text_.font, room);
  }
  void draw(const Drawing&, const PointRect& box, const PointSize& room,
            DisplayList& to) const override {
    DrawnText text = text_;
    text.box = box;
    text.room = room;
    to.push_back({std::move(text)});
  }
  bool isWhole(const Drawing& drawing, const PointSize& room) const override {
    constexpr double endless = std::numeric_limits<double>::infinity();
    if (drawing.textSize(text_.text, text_.font, {room.width, endless}).height > room.height)
      return false;
    const std::string words = eachOnALine(text_.text);
    return drawing.textSize(words, text_.font, {endless, endless}).width <= room.width;
  }

 private:
  DrawnText text_;
};

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
    to.push_back({std::move(drawn)});
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

/// One direction of a stack: along it the parts follow each other, across it they are aligned.
struct Direction {
  Axis axis;
  double PointSize::*along;
  double PointSize::*across;
  double PointRect::*position;
  double PointRect::*crossPosition;
};
constexpr Direction alongRow{Axis::horizontal, &PointSize::width, &PointSize::height, &PointRect::x,
                             &PointRect::y};
constexpr Direction alongColumn{Axis::vertical, &PointSize::height, &PointSize::width,
                                &PointRect::y, &PointRect::x};

class StackNode final : public Node {
 public:
  StackNode(Direction direction, std::vector<View> parts, Place across, double spacing)
      : direction_(direction), parts_(std::move(parts)), across_(across), spacing_(spacing) {}

  PointSize size(const Drawing& drawing, const PointSize& room) const override {
    PointSize taken;
    for (const Share& part : shares(drawing, room)) {
      taken.*direction_.along += part.taken.*direction_.along;
      taken.*direction_.across = std::max(taken.*direction_.across, part.taken.*direction_.across);
    }
    taken.*direction_.along += gaps();
    return taken;
  }

  void draw(const Drawing& drawing, const PointRect& box, const PointSize& room,
            DisplayList& to) const override {
    const PointSize own{box.width, box.height};
    const std::vector<Share> parts = shares(drawing, room);
    double next = box.*direction_.position;
    for (std::size_t i = 0; i < parts_.size(); ++i) {
      const PointSize& taken = parts[i].taken;
      PointRect place{0, 0, taken.width, taken.height};
      place.*direction_.position = next;
      place.*direction_.crossPosition =
          box.*direction_.crossPosition +
          placed(across_, own.*direction_.across, taken.*direction_.across);
      parts_[i].node().draw(drawing, place, parts[i].offered, to);
      next += taken.*direction_.along + spacing_;
    }
  }

  bool isFlexible(Axis axis) const override { return anyFlexible(parts_, axis); }
  bool isWhole(const Drawing& drawing, const PointSize& room) const override {
    const std::vector<Share> parts = shares(drawing, room);
    for (std::size_t i = 0; i < parts_.size(); ++i) {
      if (!parts_[i].node().isWhole(drawing, parts[i].offered)) return false;
    }
    return true;
  }

 private:
  struct Share {
    PointSize offered;
    PointSize taken;
  };

  double gaps() const {
    return parts_.empty() ? 0 : spacing_ * static_cast<double>(parts_.size() - 1);
  }

  /// How much longer a part can become, in points.
  double flexibility(const Drawing& drawing, const View& part, const PointSize& room) const {
    constexpr double endless = std::numeric_limits<double>::infinity();
    if (part.node().isFlexible(direction_.axis)) return endless;
    const auto taken = [&](double along) {
      PointSize offered = room;
      offered.*direction_.along = along;
      return part.node().size(drawing, offered).*direction_.along;
    };
    return taken(endless) - taken(0);
  }

  /// The order in which parts are offered room: what adapts the least first, spacers last.
  std::vector<std::size_t> order(const Drawing& drawing, const PointSize& room) const {
    std::vector<std::pair<bool, double>> ranks;
    ranks.reserve(parts_.size());
    const bool one = parts_.size() == 1; // measuring it would be in vain
    for (const View& part : parts_)
      ranks.emplace_back(part.node().isSpacer(), one ? 0 : flexibility(drawing, part, room));
    std::vector<std::size_t> order(parts_.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::ranges::stable_sort(order, {}, [&](std::size_t i) { return ranks[i]; });
    return order;
  }

  std::vector<Share> shares(const Drawing& drawing, const PointSize& room) const {
    std::vector<Share> result(parts_.size());
    const auto isSpacer = [](const View& part) { return part.node().isSpacer(); };
    const auto spacers = std::ranges::count_if(parts_, isSpacer);
    auto waiting = std::ssize(parts_) - spacers;
    double left = room.*direction_.along - gaps();
    for (const std::size_t i : order(drawing, room)) {
      if (waiting == 0) waiting = spacers;
      Share& share = result[i];
      share.offered = room;
      share.offered.*direction_.along = std::max(left / static_cast<double>(waiting), 0.0);
      share.taken = parts_[i].node().size(drawing, share.offered);
      left -= share.taken.*direction_.along;
      --waiting;
    }
    return result;
  }

  Direction direction_;
  std::vector<View> parts_;
  Place across_;
  double spacing_;
};

class LayersNode final : public Node {
 public:
  LayersNode(std::vector<View> parts, const Alignment& alignment)
      : parts_(std::move(parts)), alignment_(alignment) {}
  PointSize size(const Drawing& drawing, const PointSize& room) const override {
    PointSize taken;
    for (const View& part : parts_) {
      const PointSize own = part.node().size(drawing, room);
      taken.width = std::max(taken.width, own.width);
      taken.height = std::max(taken.height, own.height);
    }
    return taken;
  }
  void draw(const Drawing& drawing, const PointRect& box, const PointSize& room,
            DisplayList& to) const override {
    for (const View& part : parts_) {
      const PointSize own = part.node().size(drawing, room);
      part.node().draw(drawing, aligned(alignment_, box, own), room, to);
    }
  }
  bool isFlexible(Axis axis) const override { return anyFlexible(parts_, axis); }
  bool isWhole(const Drawing& drawing, const PointSize& room) const override {
    return std::ranges::all_of(
        parts_, [&](const View& part) { return part.node().isWhole(drawing, room); });
  }

 private:
  std::vector<View> parts_;
  Alignment alignment_;
};

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

/// The linear part of the transform, about the middle of the box.
Transform aboutMiddle(const PointRect& box, double a, double b, double c, double d) {
  const double x = box.x + box.width / 2;
  const double y = box.y + box.height / 2;
  return {a, b, c, d, x - a * x - c * y, y - b * x - d * y};
}

} // namespace

View text(std::string words, Font font, const PlatformColour& colour, TextAlignment alignment) {
  return View(std::make_shared<TextNode>(DrawnText{.text = std::move(words),
                                                   .font = std::move(font),
                                                   .alignment = alignment,
                                                   .colour = colour}));
}

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

View hstack(std::vector<View> parts, Place vertical, double spacing) {
  return View(std::make_shared<StackNode>(alongRow, std::move(parts), vertical, spacing));
}

View vstack(std::vector<View> parts, Place horizontal, double spacing) {
  return View(std::make_shared<StackNode>(alongColumn, std::move(parts), horizontal, spacing));
}

View zstack(std::vector<View> parts, const Alignment& alignment) {
  return View(std::make_shared<LayersNode>(std::move(parts), alignment));
}

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

View shrunkToFit(const View& view, double least) {
  return View(std::make_shared<ShrunkNode>(view, least));
}

DisplayList layOut(const View& view, const PointSize& frame, const Drawing& drawing) {
  DisplayList list;
  framed(view, frame.width, frame.height)
      .node()
      .draw(drawing, {0, 0, frame.width, frame.height}, frame, list);
  return list;
}

} // namespace vitrelle
