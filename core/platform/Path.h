// An outline of straight lines and cubic curves, as symbols and glyphs are handed to whoever draws.
#pragma once

#include <cstddef>
#include <vector>

namespace vitrelle {

struct PathPoint {
  double x = 0;
  double y = 0;

  bool operator==(const PathPoint&) const = default;
};

enum class PathCommand : unsigned char { move, line, cubic, close };

/// How many of a path's points a command uses up; the last of them is where the pen then stands.
constexpr std::size_t pointCount(PathCommand command) {
  switch (command) {
  case PathCommand::move:
  case PathCommand::line:
    return 1;
  case PathCommand::cubic:
    return 3;
  case PathCommand::close:
    return 0;
  }
  return 0;
}

struct Path {
  std::vector<PathCommand> commands;
  std::vector<PathPoint> points;

  bool operator==(const Path&) const = default;
};

enum class FillRule { nonZero, evenOdd };

} // namespace vitrelle
