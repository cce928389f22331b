#include "core/drawing/JoinedText.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace vitrelle {

namespace {

constexpr double endless = std::numeric_limits<double>::infinity();
constexpr PointSize unbounded{endless, endless};

class JoinedNode final : public View::Node {
 public:
  JoinedNode(TextRun words, TextRun tail)
      : words_(std::move(words)),
        tail_(std::move(tail)),
        wordsView_(viewOf(words_)),
        tailView_(viewOf(tail_)) {}

  PointSize size(const Drawing& drawing, const PointSize& room) const override {
    const Places places = placesIn(drawing, room);
    return {places.tail.x + places.tail.width,
            std::max(places.words.y + places.words.height, places.tail.y + places.tail.height)};
  }
  void draw(const Drawing& drawing, const PointRect& box, const PointSize& room,
            DisplayList& to) const override {
    const Places places = placesIn(drawing, room);
    const auto within = [&](const PointRect& place) {
      return PointRect{box.x + place.x, box.y + place.y, place.width, place.height};
    };
    wordsView_.node().draw(drawing, within(places.words), places.wordsRoom, to);
    tailView_.node().draw(drawing, within(places.tail), unbounded, to);
  }
  bool isWhole(const Drawing& drawing, const PointSize& room) const override {
    return wordsView_.node().isWhole(drawing, placesIn(drawing, room).wordsRoom);
  }

 private:
  struct Places {
    PointRect words;
    PointSize wordsRoom;
    PointRect tail;
  };

  static View viewOf(const TextRun& run) { return text(run.text, run.font, run.colour); }

  Places placesIn(const Drawing& drawing, const PointSize& room) const {
    const auto width = [&](const std::string& of) {
      return drawing.textSize(of, tail_.font, unbounded).width;
    };
    // Alone, the spaces at its end would not be counted.
    const double tailWidth = width(tail_.text + '|') - width("|");
    const double tailHeight = drawing.textSize(tail_.text, tail_.font, unbounded).height;
    const PointSize wordsRoom{std::max(room.width - tailWidth, 0.0), room.height};
    const PointSize words = drawing.textSize(words_.text, words_.font, wordsRoom);
    const double lower = drawing.lastBaseline(words_.text, words_.font, wordsRoom) -
                         drawing.lastBaseline(tail_.text, tail_.font, unbounded);
    return {.words = {0, std::max(-lower, 0.0), words.width, words.height},
            .wordsRoom = wordsRoom,
            .tail = {words.width, std::max(lower, 0.0), tailWidth, tailHeight}};
  }

  TextRun words_;
  TextRun tail_;
  View wordsView_;
  View tailView_;
};

} // namespace

View joined(const TextRun& words, const TextRun& tail) {
  return View(std::make_shared<JoinedNode>(words, tail));
}

} // namespace vitrelle
