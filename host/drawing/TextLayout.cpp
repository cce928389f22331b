#include "host/drawing/TextLayout.h"

#include "host/drawing/DigitCells.h"
#include "host/drawing/Emoji.h"
#include "host/drawing/Fonts.h"

#include <QTextBoundaryFinder>
#include <QTextLayout>

#include <algorithm>
#include <cmath>

namespace vitrelle::host {

namespace {

/// Beyond all that is drawn, and still far from where the layout's fixed-point numbers end.
constexpr double unboundedUnits = 1 << 20;

constexpr QChar narrowNoBreakSpace(0x202F);
constexpr QChar thinSpace(0x2009); ///< of the same width, and lines may end with it

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

/// What the lines of a text have in common.
struct Style {
  Font font;
  QFont face;
  double width; ///< of the room, in units
};

/// The layout of a paragraph, or of a part of one, which has the whole one's direction.
class Paragraph final {
 public:
  Paragraph(const QString& text, const Style& style, bool rightToLeft, QTextOption::WrapMode wrap)
      : layout_(text, style.face) {
    QTextOption option;
    option.setUseDesignMetrics(true);
    option.setWrapMode(wrap);
    option.setTextDirection(rightToLeft ? Qt::RightToLeft : Qt::LeftToRight);
    layout_.setTextOption(option);
    layout_.setCacheEnabled(true);
    QList<QTextLayout::FormatRange> formats;
    if (style.font.evenDigits) {
      cells_ = digitCells(text, style.face);
      formats = cells_.formatsFor(text, style.face);
    }
    for (const TextRange& range : emojiIn(text)) {
      QTextCharFormat format;
      format.setFont(emojiFaceOf(style.font, unitsPerPoint));
      formats.push_back({range.start, range.length, format});
    }
    if (!formats.empty()) layout_.setFormats(formats);
    layout_.beginLayout();
  }
  ~Paragraph() { layout_.endLayout(); }
  Paragraph(const Paragraph&) = delete;
  Paragraph& operator=(const Paragraph&) = delete;

  /// Not valid when there is none.
  QTextLine nextLine(double width) {
    QTextLine line = layout_.createLine();
    if (line.isValid()) line.setLineWidth(width);
    return line;
  }
  const DigitCells& cells() const { return cells_; }

 private:
  DigitCells cells_;
  QTextLayout layout_;
};

/// Adds a line of the layout below those that are there; `bottom` is in units.
void append(TextLayout& to, const QTextLine& line, const DigitCells& cells, bool rightToLeft,
            double& bottom) {
  TextLine added;
  // What the last letter has beyond its advance depends on the digit, which cells are to hide.
  added.width =
      (cells.slack.empty() ? line.naturalTextWidth() : line.horizontalAdvance()) / unitsPerPoint;
  added.baseline = (bottom + line.ascent()) / unitsPerPoint;
  added.rightToLeft = rightToLeft;
  added.runs = line.glyphRuns();
  // Qt places glyphs from the layout's corner; a line begins at its own baseline.
  const QPointF shift(-line.naturalTextRect().left(), -line.y() - line.ascent());
  for (QGlyphRun& run : added.runs) {
    QList<QPointF> positions = run.positions();
    for (QPointF& position : positions)
      position += shift;
    cells.centre(run.rawFont(), run.glyphIndexes(), positions);
    run.setPositions(positions);
  }
  bottom += line.height();
  to.size.width = std::max(to.size.width, added.width);
  to.lines.push_back(std::move(added));
}

/// The longest beginning of the text that fits into a line with dots behind it; the whole text
/// where that fits.
QString elided(const QString& text, const Style& style, bool rightToLeft) {
  const int fitting = Paragraph(text, style, rightToLeft, QTextOption::WrapAnywhere)
                          .nextLine(style.width)
                          .textLength();
  if (fitting == text.size()) return text;
  QTextBoundaryFinder letters(QTextBoundaryFinder::Grapheme, text);
  letters.setPosition(fitting);
  for (qsizetype end = fitting;; end = letters.toPreviousBoundary()) {
    QString shown = text.left(std::max(end, qsizetype{0})) + QChar(0x2026);
    Paragraph line(shown, style, rightToLeft, QTextOption::NoWrap);
    if (end <= 0 || line.nextLine(unboundedUnits).naturalTextWidth() <= style.width) return shown;
  }
}

/// One line of the beginning of what is left.
void appendElided(TextLayout& to, const QString& rest, const Style& style, bool rightToLeft,
                  double& bottom) {
  Paragraph shown(elided(rest, style, rightToLeft), style, rightToLeft, QTextOption::NoWrap);
  append(to, shown.nextLine(unboundedUnits), shown.cells(), rightToLeft, bottom);
}

} // namespace

TextLayout layOutText(const QString& text, const Font& font, const PointSize& room) {
  const Style style{
      .font = font, .face = faceOf(font, unitsPerPoint), .width = inUnits(room.width)};
  const double height = inUnits(room.height);
  TextLayout result;
  double bottom = 0;
  QString shown = text;
  // A clock that is too wide is better broken before "PM" than between its digits.
  if (font.evenDigits) shown.replace(narrowNoBreakSpace, thinSpace);
  const QStringList paragraphs = paragraphsOf(shown);
  for (qsizetype i = 0; i < paragraphs.size(); ++i) {
    const QString& words = paragraphs[i];
    const bool rightToLeft = words.isRightToLeft();
    Paragraph paragraph(words, style, rightToLeft, QTextOption::WrapAtWordBoundaryOrAnywhere);
    for (QTextLine line = paragraph.nextLine(style.width); line.isValid();
         line = paragraph.nextLine(style.width)) {
      const bool last = line.textStart() + line.textLength() >= words.size();
      const bool nothingFollows = last && i + 1 == paragraphs.size();
      const bool another = bottom + 2 * line.height() <= height + 1e-6;
      if (!nothingFollows && !another) {
        QString rest = words.mid(line.textStart());
        if (last) rest += QChar(0x2026); // a paragraph follows that is not shown
        appendElided(result, rest, style, rightToLeft, bottom);
        result.size = {roundedUp(result.size.width), roundedUp(bottom / unitsPerPoint)};
        return result;
      }
      append(result, line, paragraph.cells(), rightToLeft, bottom);
    }
  }
  result.size = {roundedUp(result.size.width), roundedUp(bottom / unitsPerPoint)};
  return result;
}

} // namespace vitrelle::host
