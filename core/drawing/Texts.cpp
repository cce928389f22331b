#include "core/drawing/View.h"

#include <limits>
#include <utility>

namespace vitrelle {

namespace {

using Node = View::Node;

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

} // namespace

View text(std::string words, Font font, const PlatformColour& colour, TextAlignment alignment) {
  return View(std::make_shared<TextNode>(DrawnText{.text = std::move(words),
                                                   .font = std::move(font),
                                                   .alignment = alignment,
                                                   .colour = colour}));
}

} // namespace vitrelle
