// Digits in cells of one width. Most faces have narrow ones, above all the 1, and a clock set in
// them would move at every change. Faces with a second set for this are not asked for it: the
// library that lays text out cannot.
#pragma once

#include <QFont>
#include <QRawFont>
#include <QString>
#include <QTextLayout>

#include <map>

namespace vitrelle::host {

struct DigitCells {
  std::map<QChar, double> slack; ///< of each digit in its cell, in pixels of the face

  /// Makes each digit of the text as wide as its cell, and apart from its neighbours.
  QList<QTextLayout::FormatRange> formatsFor(const QString& text, const QFont& face) const;
  /// Moves digits, which then stand at the left of their cells, to the middle.
  void centre(const QRawFont& font, const QList<quint32>& glyphs, QList<QPointF>& positions) const;
};

/// Those of the text's digits that the face has; the digits of each script have a width of their
/// own.
DigitCells digitCells(const QString& text, const QFont& face);

} // namespace vitrelle::host
