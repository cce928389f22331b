// A text broken into lines of placed glyphs, in points. Laid out once at a large size without
// hinting, so that it is the same at every scale.
#pragma once

#include "core/platform/DisplayList.h"

#include <QGlyphRun>
#include <QPointF>
#include <QString>

#include <vector>

namespace vitrelle::host {

/// Units of a glyph run in one point.
inline constexpr int unitsPerPoint = 8;

struct TextLine {
  double width = 0;         ///< points
  double baseline = 0;      ///< below the top of the text, points
  bool rightToLeft = false; ///< the direction of its paragraph
  QList<QGlyphRun> runs;    ///< in units, from the line's own left end and baseline
};

struct TextLayout {
  PointSize size; ///< each side rounded up to a quarter of a point
  std::vector<TextLine> lines;
};

/// Lines break at words, or inside one that is longer than a line. Of what does not fit the height
/// the last line shows the beginning, with "…". One line is always there.
TextLayout layOutText(const QString& text, const Font& font, const PointSize& room);

} // namespace vitrelle::host
