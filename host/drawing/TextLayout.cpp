#include "host/drawing/TextLayout.h"

#include "host/drawing/Fonts.h"

#include <QFontMetricsF>
#include <QTextLayout>

#include <algorithm>
#include <cmath>

namespace vitrelle::host {

namespace {

/// Beyond all that is drawn, and still far from where the layout's fixed-point numbers end.
constexpr double unboundedUnits = 1 << 20;

/// More than a screen full of the smallest letters; what is behind it is not shown.
constexpr qsizetype longestText = 8192;

QString shortened(const QString& text) {
  if (text.size() <= longestText) return text;
  const bool splits = text[longestText - 1].isHighSurrogate();
  return text.left(splits ? longestText - 1 : longestText) + QChar(0x2026);
}

/// The paragraphs of a text, without characters that are there to control a device.
QStringList paragraphsOf(const QString& text) {
  const QString whole = shortened(text).replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
  QString plain;
  for (const QChar c : whole) {
    const bool breaks =
        c == QLatin1Char('\n') || c == QChar::LineSeparator || c == QChar::ParagraphSeparator;
    if (breaks) {
      plain += QLatin1Char('\n');
    } else if (c.category() != QChar::Other_Control || c == QLatin1Char('\t')) {
      plain += c;
    }
  }
  return plain.split(QLatin1Char('\n'));
}

double inUnits(double points) {
  return std::min(std::max(points, 0.0) * unitsPerPoint, unboundedUnits);
}

double roundedUp(double points) {
  return std::ceil(points * 4 - 1e-6) / 4;
}

void prepare(QTextLayout& layout, QTextOption::WrapMode wrap) {
  QTextOption option;
  option.setUseDesignMetrics(true);
  option.setWrapMode(wrap);
  layout.setTextOption(option);
  layout.setCacheEnabled(true);
}

bool isRightToLeft(const QString& paragraph) {
  return paragraph.isRightToLeft();
}

/// Adds a line of the layout below those that are there; `bottom` is in units.
void append(TextLayout& to, const QTextLine& line, bool rightToLeft, double& bottom) {
  TextLine added;
  added.width = line.naturalTextWidth() / unitsPerPoint;
  added.baseline = (bottom + line.ascent()) / unitsPerPoint;
  added.rightToLeft = rightToLeft;
  added.runs = line.glyphRuns();
  // Qt places glyphs from the layout's corner; a line begins at its own baseline.
  const QPointF shift(-line.naturalTextRect().left(), -line.y() - line.ascent());
  for (QGlyphRun& run : added.runs) {
    QList<QPointF> positions = run.positions();
    for (QPointF& position : positions)
      position += shift;
    run.setPositions(positions);
  }
  bottom += line.height();
  to.size.width = std::max(to.size.width, added.width);
  to.lines.push_back(std::move(added));
}

/// One line of the beginning of what is left.
void appendElided(TextLayout& to, const QString& rest, const QFont& face, double width,
                  double& bottom) {
  const QString shown = QFontMetricsF(face).elidedText(rest, Qt::ElideRight, width);
  QTextLayout layout(shown, face);
  prepare(layout, QTextOption::NoWrap);
  layout.beginLayout();
  QTextLine line = layout.createLine();
  line.setLineWidth(unboundedUnits);
  layout.endLayout();
  append(to, line, isRightToLeft(shown), bottom);
}

} // namespace

TextLayout layOutText(const QString& text, const Font& font, const PointSize& room) {
  const QFont face = faceOf(font, unitsPerPoint);
  const double width = inUnits(room.width);
  const double height = inUnits(room.height);
  TextLayout result;
  double bottom = 0;
  const QStringList paragraphs = paragraphsOf(text);
  for (qsizetype i = 0; i < paragraphs.size(); ++i) {
    const QString& paragraph = paragraphs[i];
    QTextLayout layout(paragraph, face);
    prepare(layout, QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
      line.setLineWidth(width);
      const bool last = line.textStart() + line.textLength() >= paragraph.size();
      const bool nothingFollows = last && i + 1 == paragraphs.size();
      const bool another = bottom + 2 * line.height() <= height + 1e-6;
      if (!nothingFollows && !another) {
        layout.endLayout();
        QString rest = paragraph.mid(line.textStart());
        if (last) rest += QChar(0x2026); // a paragraph follows that is not shown
        appendElided(result, rest, face, width, bottom);
        result.size = {roundedUp(result.size.width), roundedUp(bottom / unitsPerPoint)};
        return result;
      }
      append(result, line, isRightToLeft(paragraph), bottom);
    }
    layout.endLayout();
  }
  result.size = {roundedUp(result.size.width), roundedUp(bottom / unitsPerPoint)};
  return result;
}

} // namespace vitrelle::host
