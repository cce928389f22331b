#include "core/drawing/Trim.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace vitrelle {

namespace {

/// A curve is measured as so many chords, whose sum is short by less than a ten-thousandth.
constexpr int chords = 64;

using Points = std::array<PathPoint, 4>;

/// A line or a curve with both its ends; a line is the curve whose control points lie on its ends.
struct Piece {
  PathCommand command;
  Points points;
  bool begins; ///< the pen was lifted before it
};

PathPoint between(PathPoint a, PathPoint b, double t) {
  return {a.x + (b.x - a.x) * t, a.y + (b.y - a.y) * t};
}

double distance(PathPoint a, PathPoint b) {
  return std::hypot(b.x - a.x, b.y - a.y);
}

/// The part of a curve up to a parameter.
Points upTo(const Points& p, double t) {
  const PathPoint a = between(p[0], p[1], t);
  const PathPoint b = between(p[1], p[2], t);
  const PathPoint c = between(p[2], p[3], t);
  const PathPoint ab = between(a, b, t);
  const PathPoint bc = between(b, c, t);
  return {p[0], a, ab, between(ab, bc, t)};
}

Points reversed(const Points& p) {
  return {p[3], p[2], p[1], p[0]};
}

std::vector<Piece> piecesOf(const Path& path) {
  std::vector<Piece> pieces;
  PathPoint first;
  PathPoint pen;
  bool begins = true;
  std::size_t next = 0;
  const auto add = [&](PathCommand command, PathPoint a, PathPoint b, PathPoint end) {
    pieces.push_back({command, {pen, a, b, end}, begins});
    pen = end;
    begins = false;
  };
  for (const PathCommand command : path.commands) {
    const PathPoint* points = path.points.data() + next;
    switch (command) {
    case PathCommand::move:
      first = pen = points[0];
      begins = true;
      break;
    case PathCommand::line:
      add(command, pen, points[0], points[0]);
      break;
    case PathCommand::cubic:
      add(command, points[0], points[1], points[2]);
      break;
    case PathCommand::close:
      if (pen != first) add(PathCommand::line, pen, first, first);
      begins = true;
      break;
    }
    next += pointCount(command);
  }
  return pieces;
}

double lengthOf(const Piece& piece) {
  if (piece.command == PathCommand::line) return distance(piece.points[0], piece.points[3]);
  double length = 0;
  PathPoint pen = piece.points[0];
  for (int i = 1; i <= chords; ++i) {
    const PathPoint end = upTo(piece.points, double(i) / chords)[3];
    length += distance(pen, end);
    pen = end;
  }
  return length;
}

/// The parameter at a way along the curve.
double parameterAt(const Points& points, double way) {
  PathPoint pen = points[0];
  for (int i = 1; i <= chords; ++i) {
    const PathPoint end = upTo(points, double(i) / chords)[3];
    const double chord = distance(pen, end);
    if (chord >= way && chord > 0) return (i - 1 + way / chord) / chords;
    way -= chord;
    pen = end;
  }
  return 1;
}

/// Its part between two ways along it.
Points part(const Piece& piece, double length, double from, double to) {
  const Points& whole = piece.points;
  if (piece.command == PathCommand::line) {
    const PathPoint start = between(whole[0], whole[3], from / length);
    const PathPoint end = between(whole[0], whole[3], to / length);
    return {start, start, end, end};
  }
  const double last = to < length ? parameterAt(whole, to) : 1;
  const double first = from > 0 ? parameterAt(whole, from) : 0;
  return reversed(upTo(reversed(upTo(whole, last)), 1 - first / last));
}

} // namespace

Path trimmed(const Path& path, double from, double to) {
  from = std::max(from, 0.0);
  to = std::min(to, 1.0);
  if (!(from < to)) return {};
  if (from == 0 && to == 1) return path;
  const std::vector<Piece> pieces = piecesOf(path);
  std::vector<double> lengths;
  double total = 0;
  for (const Piece& piece : pieces)
    total += lengths.emplace_back(lengthOf(piece));
  if (!std::isfinite(total)) return {};

  Path result;
  double before = 0;
  for (std::size_t i = 0; i < pieces.size(); before += lengths[i], ++i) {
    const double start = std::max(from * total - before, 0.0);
    const double end = std::min(to * total - before, lengths[i]);
    if (!(start < end)) continue;
    const Points points = part(pieces[i], lengths[i], start, end);
    if (pieces[i].begins || result.commands.empty()) {
      result.commands.push_back(PathCommand::move);
      result.points.push_back(points[0]);
    }
    result.commands.push_back(pieces[i].command);
    const bool line = pieces[i].command == PathCommand::line;
    result.points.insert(result.points.end(), points.begin() + (line ? 3 : 1), points.end());
  }
  return result;
}

} // namespace vitrelle
