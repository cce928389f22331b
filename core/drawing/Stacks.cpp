#include "core/drawing/Placement.h"
#include "core/drawing/View.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>
#include <utility>

namespace vitrelle {

namespace {

using Node = View::Node;

bool anyFlexible(const std::vector<View>& parts, Axis axis) {
  return std::ranges::any_of(parts,
                             [axis](const View& part) { return part.node().isFlexible(axis); });
}

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

} // namespace

View hstack(std::vector<View> parts, Place vertical, double spacing) {
  return View(std::make_shared<StackNode>(alongRow, std::move(parts), vertical, spacing));
}

View vstack(std::vector<View> parts, Place horizontal, double spacing) {
  return View(std::make_shared<StackNode>(alongColumn, std::move(parts), horizontal, spacing));
}

View zstack(std::vector<View> parts, const Alignment& alignment) {
  return View(std::make_shared<LayersNode>(std::move(parts), alignment));
}

} // namespace vitrelle
