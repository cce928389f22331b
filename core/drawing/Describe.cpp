#include "core/drawing/Describe.h"

#include <array>
#include <cmath>
#include <cstdio>
#include <string_view>

namespace vitrelle {

namespace {

constexpr std::array<const char*, 3> caps{"butt", "round", "square"};
constexpr std::array<const char*, 3> joins{"miter", "round", "bevel"};

std::string number(double value) {
  char text[32];
  std::snprintf(text, sizeof text, "%.3f", value);
  std::string result = text;
  result.erase(result.find_last_not_of('0') + 1);
  if (result.back() == '.') result.pop_back();
  return result == "-0" ? "0" : result;
}

template <class... Numbers>
std::string numbers(Numbers... values) {
  std::string result;
  ((result += ' ' + number(values)), ...);
  return result;
}

std::string quoted(std::string_view text) {
  std::string result = "\"";
  for (const char c : text) {
    if (c == '"' || c == '\\') result += '\\';
    result += c == '\n' ? std::string("\\n") : std::string(1, c);
  }
  return result + '"';
}

/// " FF8000", with the alpha behind it where it is not opaque.
std::string words(const PlatformColour& colour) {
  char text[8];
  const auto byte = [](double part) {
    return static_cast<unsigned>(std::lround(part * 255)) & 0xFFU;
  };
  std::snprintf(text, sizeof text, " %02X%02X%02X", byte(colour.red), byte(colour.green),
                byte(colour.blue));
  return text + (colour.alpha == 1 ? std::string() : " alpha" + numbers(colour.alpha));
}

std::string words(const LinearGradient& gradient) {
  std::string result = " gradient from" + numbers(gradient.start.x, gradient.start.y) + " to" +
                       numbers(gradient.end.x, gradient.end.y);
  for (const GradientStop& stop : gradient.stops)
    result += ',' + words(stop.colour) + " at" + numbers(stop.at);
  return result;
}

std::string words(const PointRect& box) {
  return " at" + numbers(box.x, box.y) + " size" + numbers(box.width, box.height);
}

std::string words(const Path& path) {
  std::string result;
  std::size_t next = 0;
  for (const PathCommand command : path.commands) {
    constexpr std::string_view letters = "MLCZ";
    result += ' ';
    result += letters[static_cast<std::size_t>(command)];
    for (std::size_t i = 0; i < pointCount(command); ++i, ++next)
      result += numbers(path.points[next].x, path.points[next].y);
  }
  return result;
}

class Writer final {
 public:
  void write(const DisplayList& list, const std::string& indent) {
    for (const DisplayItem& item : list) {
      text_ += indent;
      std::visit([&](const auto& content) { writeItem(content, indent); }, item.content);
    }
  }
  std::string take() { return std::move(text_); }

 private:
  void writeItem(const DrawnPath& item, const std::string&) {
    const std::string paint = item.gradient ? words(*item.gradient) : words(item.colour);
    if (item.stroke) {
      text_ += "stroke" + paint + " width" + numbers(item.stroke->width) + ' ' +
               caps[static_cast<std::size_t>(item.stroke->cap)] + ' ' +
               joins[static_cast<std::size_t>(item.stroke->join)] +
               numbers(item.stroke->miterLimit);
    } else {
      text_ += "fill" + paint;
      if (item.rule == FillRule::evenOdd) text_ += " even-odd";
    }
    text_ += words(item.path) + '\n';
  }
  void writeItem(const DrawnText& item, const std::string&) {
    text_ +=
        "text " + quoted(item.text) + " in " + quoted(item.font.name) + numbers(item.font.size);
    if (item.font.weight != 400) text_ += " weight " + std::to_string(item.font.weight);
    if (item.font.evenDigits) text_ += " even digits";
    if (item.alignment == TextAlignment::centre) text_ += " centred";
    text_ += words(item.colour) + words(item.box);
    if (item.room != PointSize{item.box.width, item.box.height})
      text_ += " room" + numbers(item.room.width, item.room.height);
    text_ += '\n';
  }
  void writeItem(const DrawnSymbol& item, const std::string&) {
    text_ += "symbol " + quoted(item.name);
    if (item.weight != 400) text_ += " weight " + std::to_string(item.weight);
    if (item.ownColours) text_ += " own colours else";
    text_ += words(item.colour) + words(item.box) + '\n';
  }
  void writeItem(const DrawnImage& item, const std::string&) {
    text_ += "image" + numbers(double(item.image.size().width), double(item.image.size().height)) +
             words(item.box);
    if (!item.outline.commands.empty()) text_ += " within" + words(item.outline);
    text_ += '\n';
  }
  void writeItem(const DrawnGroup& group, const std::string& indent) {
    text_ += "group";
    if (const Transform& t = group.transform; t != Transform())
      text_ += " transform" + numbers(t.a, t.b, t.c, t.d, t.x, t.y);
    if (group.shadow) {
      text_ += " shadow" + words(group.shadow->colour) + " radius" + numbers(group.shadow->radius) +
               " offset" + numbers(group.shadow->x, group.shadow->y);
    }
    if (group.opacity != 1) text_ += " opacity" + numbers(group.opacity);
    text_ += '\n';
    write(group.items, indent + "  ");
  }

  std::string text_;
};

} // namespace

std::string describe(const DisplayList& list) {
  Writer writer;
  writer.write(list, "");
  return writer.take();
}

} // namespace vitrelle
