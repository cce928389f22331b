#include "host/symbols/Symbols.h"

#include "core/pickers/SymbolCatalogue.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace vitrelle::host {

namespace {

const char* const usedNames[] = {
    "5.circle",
    "50.square.fill",
    "a.magnify",
    "airplane",
    "airplane.circle",
    "airplane.circle.fill",
    "app",
    "app.fill",
    "apps.iphone",
    "appstore",
    "arrow.clockwise",
    "arrow.down.right.and.arrow.up.left",
    "arrow.forward.to.line",
    "arrow.up.and.down.righttriangle.up.righttriangle.down.fill",
    "arrow.up.left.and.arrow.down.right",
    "arrow.up.right",
    "arrowshape.turn.up.left",
    "arrowshape.turn.up.left.circle",
    "arrowshape.turn.up.left.fill",
    "arrowtriangle.down.square.fill",
    "aspectratio.fill",
    "atom",
    "bag",
    "bag.fill",
    "battery.100",
    "bonjour",
    "book.fill",
    "brazilianrealsign.square.fill",
    "calendar",
    "capsule",
    "checkmark.circle.fill",
    "checkmark.shield.fill",
    "chevron.left",
    "chevron.right",
    "circle",
    "circle.dashed",
    "circle.dotted",
    "circle.grid.cross",
    "circle.grid.cross.fill",
    "circle.grid.cross.left.filled",
    "circle.hexagonpath.fill",
    "circle.inset.filled",
    "clock",
    "clock.arrow.circlepath",
    "clock.circle",
    "clock.fill",
    "cloud",
    "cloud.sun.fill",
    "command",
    "command.circle",
    "command.circle.fill",
    "doc.on.clipboard.fill",
    "drop",
    "ellipsis",
    "exclamationmark.bubble.fill",
    "exclamationmark.shield.fill",
    "externaldrive.badge.person.crop",
    "externaldrive.connected.to.line.below",
    "externaldrive.connected.to.line.below.fill",
    "eye.slash.fill",
    "eyedropper.halffull",
    "figure.wave.circle.fill",
    "folder.badge.person.crop",
    "folder.fill.badge.person.crop",
    "function",
    "gauge.medium",
    "gear",
    "gearshape.2.fill",
    "globe.americas",
    "globe.americas.fill",
    "globe.europe.africa",
    "hammer",
    "hand.tap",
    "hand.tap.fill",
    "hands.sparkles.fill",
    "hearingdevice.ear",
    "heart",
    "heart.text.square",
    "heart.text.square.fill",
    "hourglass",
    "hourglass.tophalf.filled",
    "house.fill",
    "humidity.fill",
    "infinity",
    "info",
    "info.circle.fill",
    "iphone",
    "keyboard",
    "keyboard.badge.ellipsis",
    "keyboard.fill",
    "leaf.arrow.triangle.circlepath",
    "line.diagonal",
    "link",
    "list.dash",
    "location.fill",
    "location.slash.fill",
    "mic",
    "mic.circle",
    "mic.fill",
    "minus.circle.fill",
    "moon.fill",
    "music.note",
    "newspaper.fill",
    "paintpalette.fill",
    "paragraphsign",
    "pencil",
    "pencil.circle",
    "pencil.circle.fill",
    "percent",
    "person",
    "person.and.background.dotted",
    "person.fill",
    "person.fill.viewfinder",
    "personalhotspot",
    "photo.fill",
    "play",
    "play.circle",
    "play.fill",
    "plus.circle.fill",
    "questionmark",
    "questionmark.circle",
    "questionmark.circle.fill",
    "questionmark.square",
    "recordingtape",
    "rectangle.fill.badge.plus",
    "rectangle.on.rectangle",
    "rectangle.portrait.fill",
    "rectangle.roundedbottom.fill",
    "seal",
    "seal.fill",
    "signature",
    "slider.horizontal.3",
    "smallcircle.filled.circle",
    "snow",
    "sparkles",
    "square",
    "square.2.layers.3d",
    "square.3.layers.3d",
    "square.and.arrow.up",
    "square.grid.2x2",
    "star",
    "star.fill",
    "staroflife.circle.fill",
    "stopwatch.fill",
    "sum",
    "sun",
    "sun.max",
    "sun.max.fill",
    "sun.min",
    "sun.min.fill",
    "terminal.fill",
    "text.append",
    "text.book.closed.fill",
    "text.bubble.fill",
    "thermometer",
    "trash",
    "umbrella",
    "waveform",
    "wind",
    "x.squareroot",
    "xmark.circle.fill",
    "y.circle.fill",
};

void expectDrawable(const SymbolOutline& symbol, const std::string& name) {
  const Path& path = symbol.path;
  EXPECT_FALSE(path.commands.empty()) << name;
  const auto isWithin = [&](double x, double y) {
    constexpr double margin = 0.02;
    return x > -margin && x < symbol.width + margin && y > -margin && y < symbol.height + margin;
  };
  std::size_t next = 0;
  for (const PathCommand command : path.commands) {
    ASSERT_LE(next + pointCount(command), path.points.size()) << name;
    const PathPoint* point = path.points.data() + next;
    if (command == PathCommand::cubic) {
      const PathPoint start = point[-1];
      const PathPoint middle = {(start.x + 3 * point[0].x + 3 * point[1].x + point[2].x) / 8,
                                (start.y + 3 * point[0].y + 3 * point[1].y + point[2].y) / 8};
      EXPECT_TRUE(isWithin(middle.x, middle.y)) << name << ' ' << middle.x << ',' << middle.y;
    }
    next += pointCount(command);
    if (next > 0) {
      const PathPoint end = path.points[next - 1];
      EXPECT_TRUE(isWithin(end.x, end.y)) << name << ' ' << end.x << ',' << end.y;
    }
  }
  EXPECT_EQ(next, path.points.size()) << name;
}

} // namespace

TEST(Symbols, usedNames_areNeitherStrippedNorUnknown) {
  const Symbols symbols = makeSymbols();
  for (const std::string name : usedNames) {
    const SymbolMatch match = symbols.match(name);
    EXPECT_LT(match, SymbolMatch::stripped) << name;
    expectDrawable(symbols.outline(name), name);
  }
}

std::set<std::string> catalogueNames() {
  std::set<std::string> names;
  for (const auto& [label, list] : symbolCatalogue())
    names.insert(list.begin(), list.end());
  return names;
}

TEST(Symbols, catalogue_hasPicturesOfItsOwn) {
  const Symbols symbols = makeSymbols();
  const std::set<std::string> names = catalogueNames();
  std::string without;
  std::size_t count = 0;
  for (const std::string& name : names) {
    if (symbols.match(name) >= SymbolMatch::stripped) {
      without += ' ' + name;
      ++count;
    }
    const SymbolOutline symbol = symbols.outline(name);
    expectDrawable(symbol, name);
    const auto [left, right] = std::ranges::minmax(symbol.path.points, {}, &PathPoint::x);
    const auto [top, bottom] = std::ranges::minmax(symbol.path.points, {}, &PathPoint::y);
    EXPECT_GT(std::max(right.x - left.x, bottom.y - top.y), 8) << name << " is all but blank";
  }
  EXPECT_LE(count, names.size() / 20) << without;
}

TEST(Symbols, fill_differsFromItsOutline) {
  constexpr std::string_view fill = ".fill";
  const Symbols symbols = makeSymbols();
  const std::set<std::string> names = catalogueNames();
  int compared = 0;
  for (const std::string& name : names) {
    const std::size_t at = name.find(fill);
    if (at == std::string::npos || name.find(".filled") == at) continue;
    const std::string plain = std::string(name).erase(at, fill.size());
    if (!names.contains(plain)) continue;
    ++compared;
    EXPECT_NE(symbols.outline(name).path, symbols.outline(plain).path) << name;
  }
  EXPECT_GT(compared, 1000);
}

TEST(Symbols, name_isFoundByItsNearestPicture) {
  const struct {
    const char* name;
    SymbolMatch match;
  } cases[] = {{"gearshape", SymbolMatch::alias},
               {"heart.slash", SymbolMatch::composition},
               {"50.square.fill", SymbolMatch::composition},
               {"wind.circle", SymbolMatch::composition},
               {"gearshape.badge.questionmark", SymbolMatch::stripped},
               {"wind.fill", SymbolMatch::stripped},
               {"wind.slash.circle.fill", SymbolMatch::stripped},
               {"q.unheard.of", SymbolMatch::fallback},
               {"Nonsense", SymbolMatch::fallback},
               {".", SymbolMatch::fallback},
               {"", SymbolMatch::fallback}};
  const Symbols symbols = makeSymbols();
  for (const auto& [name, match] : cases) {
    EXPECT_EQ(symbols.match(name), match) << name;
    expectDrawable(symbols.outline(name), name);
  }
}

std::size_t contours(const SymbolOutline& symbol) {
  return static_cast<std::size_t>(std::ranges::count(symbol.path.commands, PathCommand::move));
}

TEST(Symbols, parts_areTheWholeSymbol) {
  const Symbols symbols = makeSymbols();
  int coloured = 0;
  for (const std::string& name : catalogueNames()) {
    const SymbolOutline whole = symbols.outline(name);
    std::size_t count = 0;
    std::size_t own = 0;
    const std::vector<SymbolPart> parts = symbols.parts(name);
    for (const auto& [outline, colour] : parts) {
      expectDrawable(outline, name);
      EXPECT_EQ(outline.rule, whole.rule) << name;
      count += contours(outline);
      if (colour) ++own;
    }
    EXPECT_EQ(count, contours(whole)) << name;
    EXPECT_GE(own + 1, parts.size()) << name << ": what has no colour is one part";
    if (own > 0) ++coloured;
  }
  EXPECT_GT(coloured, 60);
}

TEST(Symbols, parts_haveTheColoursOfWhatTheyShow) {
  const Symbols symbols = makeSymbols();
  const auto lowest = [](const SymbolPart& part) {
    return std::ranges::max(part.outline.path.points, {}, &PathPoint::y).y;
  };
  const auto parts = symbols.parts("cloud.sun.rain.fill");
  ASSERT_EQ(parts.size(), 3);
  const SymbolPart& cloud = parts[0];
  const SymbolPart& sun = parts[1];
  const SymbolPart& drops = parts[2];
  EXPECT_EQ(cloud.colour, (PlatformColour{1, 1, 1, 1}));
  EXPECT_EQ(contours(cloud.outline), 1);
  EXPECT_EQ(sun.colour, symbols.parts("sun.max").front().colour);
  EXPECT_LT(sun.colour->blue, 0.2);
  EXPECT_LT(lowest(sun), 8);
  EXPECT_EQ(drops.colour, symbols.parts("drop.fill").front().colour);
  EXPECT_GT(drops.colour->blue, 0.8);
  EXPECT_GT(lowest(drops), lowest(cloud));

  EXPECT_FALSE(symbols.parts("thermometer").front().colour) << "the glass lies behind";
  EXPECT_TRUE(symbols.parts("thermometer").back().colour);
  EXPECT_EQ(symbols.parts("moon.fill.badge.plus").front().colour,
            symbols.parts("moon.fill").front().colour);
  for (const char* name : {"link", "sun.max.circle.fill", "50.square", "q.unheard.of", ""}) {
    ASSERT_EQ(symbols.parts(name).size(), 1) << name;
    EXPECT_FALSE(symbols.parts(name).front().colour) << name;
    EXPECT_EQ(symbols.parts(name).front().outline.path, symbols.outline(name).path) << name;
  }
}

TEST(Symbols, filledShape_hasItsGlyphAsAHole) {
  const Symbols symbols = makeSymbols();
  const SymbolOutline ring = symbols.outline("y.circle");
  const SymbolOutline disc = symbols.outline("y.circle.fill");
  EXPECT_EQ(disc.rule, FillRule::evenOdd);
  // The ring's inner edge is what the disc lacks.
  EXPECT_LT(disc.path.commands.size(), ring.path.commands.size());
  EXPECT_NE(symbols.outline("y.circle.fill").path, symbols.outline("x.circle.fill").path);
}

TEST(Symbols, glyphWithinAShape_fillsItsRoom) {
  // A heart, whose control points lie far beside it, is as wide in its ring as a star is.
  const Symbols symbols = makeSymbols();
  for (const char* name : {"heart.circle", "star.circle", "drop.circle"}) {
    const SymbolOutline symbol = symbols.outline(name);
    const PathPoint* before = nullptr;
    double left = symbol.width;
    double right = 0;
    double top = symbol.height;
    double bottom = 0;
    std::size_t next = 0;
    int closed = 0;
    for (const PathCommand command : symbol.path.commands) {
      const PathPoint* point = symbol.path.points.data() + next;
      next += pointCount(command);
      if (command == PathCommand::close) ++closed;
      if (command == PathCommand::close || closed < 2) continue; // the ring's two edges
      constexpr int steps = 50;
      for (int i = 1; command == PathCommand::cubic && i <= steps; ++i) {
        const double t = i / double{steps};
        const double u = 1 - t;
        const auto along = [&](double PathPoint::*way) {
          return u * u * u * before->*way + 3 * u * u * t * point[0].*way +
                 3 * u * t * t * point[1].*way + t * t * t * point[2].*way;
        };
        left = std::min(left, along(&PathPoint::x));
        right = std::max(right, along(&PathPoint::x));
        top = std::min(top, along(&PathPoint::y));
        bottom = std::max(bottom, along(&PathPoint::y));
      }
      before = symbol.path.points.data() + next - 1;
      left = std::min(left, before->x);
      right = std::max(right, before->x);
      top = std::min(top, before->y);
      bottom = std::max(bottom, before->y);
    }
    const double width = right - left;
    const double height = bottom - top;
    EXPECT_TRUE(std::max(width, height) > 8.45 || std::hypot(width, height) > 10.95)
        << name << ' ' << width << " by " << height;
    EXPECT_NEAR((left + right) / 2, 8, 0.01) << name;
    EXPECT_NEAR((top + bottom) / 2, 8, 0.01) << name;
  }
}

} // namespace vitrelle::host
