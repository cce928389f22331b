#include "cli/SymbolSheet.h"

#include "core/drawing/Shapes.h"
#include "core/drawing/View.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace vitrelle::cli {

namespace {

// Points.
constexpr double symbolSize = 28;
constexpr double cellWidth = 64;
constexpr double cellHeight = 62;
constexpr double letterSize = 6.5;

constexpr PlatformColour paper{0.11, 0.11, 0.12, 1};
constexpr PlatformColour ink{1, 1, 1, 1};
constexpr PlatformColour quietInk{0.6, 0.6, 0.62, 1};
constexpr PlatformColour warning{1, 0.6, 0, 1};

/// Where a line may break: names have no blanks.
std::string withBreaks(std::string_view name) {
  constexpr std::size_t longest = 17;
  std::string text;
  std::size_t line = 0;
  while (!name.empty()) {
    const std::size_t dot = name.find('.', 1);
    const std::string_view word = name.substr(0, dot);
    if (line > 0 && line + word.size() > longest) {
      text += '\n';
      line = 0;
    }
    text += word;
    line += word.size();
    name.remove_prefix(word.size());
  }
  return text;
}

View cell(const Platform& platform, std::string_view name, bool ownColours) {
  const bool own = platform.symbols.match(std::string(name)) < SymbolMatch::stripped;
  const auto drawn = ownColours ? symbolInOwnColours : symbol;
  const View picture = drawn(std::string(name), symbolSize, own ? ink : warning, 400);
  const View words = text(withBreaks(name), {.size = letterSize}, quietInk, TextAlignment::centre);
  return framed(padded(vstack({picture, words}, Place::centre, 3), {.top = 5}), cellWidth,
                cellHeight, {Place::centre, Place::start});
}

} // namespace

Status drawSymbolSheet(const Platform& platform, const std::vector<std::string_view>& names,
                       bool ownColours, int scale, const std::string& file) {
  const auto columns =
      static_cast<std::size_t>(std::ceil(std::sqrt(static_cast<double>(names.size()))));
  std::vector<View> rows;
  for (std::size_t next = 0; next < names.size(); next += columns) {
    std::vector<View> row;
    for (std::size_t i = next; i < std::min(next + columns, names.size()); ++i)
      row.push_back(cell(platform, names[i], ownColours));
    rows.push_back(hstack(std::move(row), Place::start, 0));
  }
  const PointSize frame{static_cast<double>(columns) * cellWidth,
                        static_cast<double>(rows.size()) * cellHeight};
  const DisplayList back{
      {DrawnPath{.path = shapes::rectangle({0, 0, frame.width, frame.height}), .colour = paper}}};
  const View sheet = vstack(std::move(rows), Place::start, 0);
  const std::array layers{back, layOut(sheet, frame, platform.drawing)};
  const auto picture = platform.drawing.render(layers, {0, 0, frame.width, frame.height}, scale);
  if (!picture) return picture.failure();
  const PngFile png{file, *picture};
  const auto written = platform.images.writePngFiles({&png, 1});
  return written.front() ? success() : Status(written.front().failure());
}

} // namespace vitrelle::cli
