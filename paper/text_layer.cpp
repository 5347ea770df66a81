#include "paper/text_layer.h"

#include <cmath>
#include <numeric>

#include <QBuffer>
#include <QGlyphRun>
#include <QHashFunctions>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QRawFont>
#include <QTextLayout>

#include "canvas/qt_canvas.h"
#include "canvas/qt_text.h"
#include "canvas/sheet_font.h"
#include "canvas/sheet_glyphs.h"
#include "surface/failure.h"

namespace orvane {
namespace {

constexpr int dotsPerInch = 1200;
constexpr double dotsPerPoint = dotsPerInch / 72.0;

// A step from glyph to glyph that no rounding explains, pixels: something of another font stands in between.
constexpr double leap = 1.5;

// The glyphs of one line in one font, with their places on the bitmap.
class Line {
 public:
  explicit Line(const QGlyphRun& run, double end)
      : run_(run),
        glyphs_(run.glyphIndexes()),
        places_(run.positions()),
        steps_(run.rawFont().advancesForGlyphIndexes(glyphs_, QRawFont::UseDesignMetrics)),
        blank_(run.rawFont().glyphIndexesForString(QStringLiteral(" ")).value(0)),
        end_(end) {}

  // On the bitmap each glyph takes whole pixels. On paper words begin and end at the same places, and in between each
  // letter has the width that it was drawn with.
  QGlyphRun withEvenLetters() {
    for (qsizetype first = 0; first < glyphs_.size();) {
      const qsizetype next = endOfWord(first);
      spread(first, next);
      first = next;
    }
    run_.setPositions(places_);
    return run_;
  }

 private:
  double left(qsizetype glyph) const { return glyph < places_.size() ? places_[glyph].x() : end_; }

  bool leapsBehind(qsizetype glyph) const { return std::abs(left(glyph + 1) - left(glyph) - steps_[glyph].x()) > leap; }

  qsizetype endOfWord(qsizetype first) const {
    qsizetype next = first + 1;
    while (next < glyphs_.size() && glyphs_[next] != blank_ && glyphs_[next - 1] != blank_ && !leapsBehind(next - 1))
      ++next;
    return next;
  }

  void spread(qsizetype first, qsizetype next) {
    if (leapsBehind(next - 1)) return;
    double natural = 0;
    for (qsizetype i = first; i < next; ++i) natural += steps_[i].x();
    const double share = (left(next) - left(first) - natural) / static_cast<double>(next - first);
    for (qsizetype i = first + 1; i < next; ++i) places_[i].setX(places_[i - 1].x() + steps_[i - 1].x() + share);
  }

  QGlyphRun run_;
  QList<quint32> glyphs_;
  QList<QPointF> places_;
  QList<QPointF> steps_;
  quint32 blank_;
  double end_;
};

// The composition fills a last line up with blanks; a reader who copies it wants none.
QString withoutBlanksAtItsEnd(QString text) {
  while (text.endsWith(' ')) text.chop(1);
  return text;
}

// One unit of the painter is a pixel of the bitmap.
void print(QPainter& painter, const PrintedText& printed) {
  const auto& glyphs = SheetGlyphs::ofSize(printed.points);
  QTextLayout layout(withoutBlanksAtItsEnd(toQt(printed.text)), glyphs.font());
  layout.beginLayout();
  QTextLine line = layout.createLine();
  layout.endLayout();
  const QPointF pen = penAt(printed.x, printed.y, glyphs.metrics()) - QPointF(0, line.ascent());
  for (const auto& run : line.glyphRuns())
    painter.drawGlyphRun(pen, Line(run, line.naturalTextWidth()).withEvenLetters());
}

void print(QPainter& painter, const PlacedSide& placed) {
  const SheetFontRules rules;
  painter.save();
  painter.scale(dotsPerPoint, dotsPerPoint);
  painter.translate(placed.corner);
  painter.scale(placed.scale * pointsPerPixel, placed.scale * pointsPerPixel);
  for (const auto& text : *placed.texts) print(painter, text);
  painter.restore();
}

}  // namespace

QByteArray textLayer(const std::vector<PaperPage>& pages) {
  QHashSeed::setDeterministicGlobalSeed();  // the writer puts several fonts into the order of a hash table
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  QPdfWriter writer(&buffer);
  writer.setResolution(dotsPerInch);
  writer.setPageSize(QPageSize(QPageSize::A4));
  writer.setPageMargins({});
  QPainter painter(&writer);
  painter.setPen(Qt::black);
  for (std::size_t i = 0; i < pages.size(); ++i) {
    if (i > 0 && !writer.newPage()) throw Failure("Le PDF ne prend pas de page de plus.");
    for (const auto& placed : pages[i]) print(painter, placed);
  }
  painter.end();
  return bytes;
}

}  // namespace orvane
