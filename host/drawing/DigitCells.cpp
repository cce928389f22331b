#include "host/drawing/DigitCells.h"

#include <algorithm>

namespace vitrelle::host {

namespace {

constexpr int digits = 10;

/// The ten digits of a script, from one of them.
QString scriptOf(QChar digit) {
  QString all;
  for (int value = 0; value < digits; ++value)
    all += QChar(digit.unicode() - digit.digitValue() + value);
  return all;
}

void addScript(DigitCells& to, const QString& script, const QRawFont& font) {
  const QList<quint32> glyphs = font.glyphIndexesForString(script);
  if (glyphs.size() != digits || glyphs.contains(0U)) return;
  const QList<QPointF> advances =
      font.advancesForGlyphIndexes(glyphs, QRawFont::SeparateAdvances | QRawFont::UseDesignMetrics);
  double cell = 0;
  for (const QPointF& advance : advances)
    cell = std::max(cell, advance.x());
  for (qsizetype i = 0; i < digits; ++i)
    to.slack[script[i]] = cell - advances[i].x();
}

} // namespace

QList<QTextLayout::FormatRange> DigitCells::formatsFor(const QString& text,
                                                       const QFont& face) const {
  QList<QTextLayout::FormatRange> formats;
  for (int i = 0; i < text.size(); ++i) {
    const auto found = slack.find(text[i]);
    if (found == slack.end()) continue;
    QFont spaced = face;
    spaced.setLetterSpacing(QFont::AbsoluteSpacing, found->second);
    QTextCharFormat format;
    format.setFont(spaced);
    formats.push_back({i, 1, format});
  }
  return formats;
}

void DigitCells::centre(const QRawFont& font, const QList<quint32>& glyphs,
                        QList<QPointF>& positions) const {
  std::map<quint32, double> shifts;
  for (const auto& [digit, room] : slack) {
    const QList<quint32> glyph = font.glyphIndexesForString(QString(digit));
    if (glyph.size() == 1 && glyph[0] != 0) shifts[glyph[0]] = room / 2;
  }
  for (qsizetype i = 0; i < glyphs.size(); ++i) {
    if (const auto found = shifts.find(glyphs[i]); found != shifts.end())
      positions[i].rx() += found->second;
  }
}

DigitCells digitCells(const QString& text, const QFont& face) {
  DigitCells cells;
  const QRawFont font = QRawFont::fromFont(face);
  for (const QChar c : text) {
    if (c.isDigit() && !cells.slack.contains(c)) addScript(cells, scriptOf(c), font);
  }
  return cells;
}

} // namespace vitrelle::host
