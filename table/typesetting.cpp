#include "table/typesetting.h"

#include <stdexcept>

#include <QAbstractTextDocumentLayout>
#include <QFontDatabase>
#include <QPalette>
#include <QTextBlock>
#include <QTextCursor>

#include "sheet/art/render/pdf.h"

namespace orvane {
namespace {

// Nothing is smaller than 9 points. The bars are those of the character sheet.
const auto kStyle = QStringLiteral(
    "p, li, td, th { line-height: 107%; }"
    "p { margin: 0 0 3px 0; }"
    "ul { margin: 0 0 3px 0; }"
    "li { margin: 0 0 1px 0; }"
    "h1 { font-family: 'Liberation Sans'; font-weight: bold; margin: 0; }"
    "h2 { font-family: 'Liberation Sans'; font-size: medium; font-weight: bold; color: #ffffff;"
    "  margin: 9px 0 6px 0; }"
    "table { margin-top: 5px; }"
    "th { font-family: 'Liberation Sans'; font-size: 9pt; text-align: left; }"
    ".lead { font-style: italic; margin: 2px 0 0 0; }"
    ".foot { font-size: 9pt; font-style: italic; color: #595959; margin: 0; }"
    ".name { font-family: 'Liberation Sans'; font-weight: bold; }"
    ".entry, .alphabet { line-height: 100%; margin: 0; }");

constexpr int kBarLevel = 2;
constexpr double kBarIndent = 1.2;   // millimetres
constexpr double kBarPadding = 0.5;  // millimetres above and below a line, whose letters nearly fill its height
constexpr double kBodyPoints = 9.5;
constexpr double kListIndent = 10;

void requireFonts() {
  for (const auto* family : {"Liberation Sans", "Liberation Serif"})
    if (!QFontDatabase::hasFamily(family)) throw std::runtime_error(std::string("the font is missing: ") + family);
}

bool isBar(const QTextBlock& block) { return block.blockFormat().headingLevel() == kBarLevel; }

void indentBars(QTextDocument& text) {
  QTextBlockFormat indented;
  indented.setTextIndent(dots(kBarIndent));
  for (auto block = text.begin(); block.isValid(); block = block.next())
    if (isBar(block)) QTextCursor(block).mergeBlockFormat(indented);
}

// Behind their headings; Qt can give a block a ground, but none that is higher than its line.
void drawBars(QPainter& painter, const QTextDocument& text) {
  const double padding = dots(kBarPadding);
  for (auto block = text.begin(); block.isValid(); block = block.next()) {
    if (!isBar(block)) continue;
    const QRectF line = text.documentLayout()->blockBoundingRect(block);
    painter.fillRect(QRectF(0, line.top() - padding, text.textWidth(), line.height() + 2 * padding), Qt::black);
  }
}

}  // namespace

double dots(double millimetres) { return millimetres * kPaperDpi / 25.4; }
double millimetres(double dots) { return dots * 25.4 / kPaperDpi; }

std::unique_ptr<QTextDocument> Typesetting::set(const QString& html, double width) const {
  requireFonts();
  auto text = std::make_unique<QTextDocument>();
  QFont body(QStringLiteral("Liberation Serif"));
  body.setPointSizeF(kBodyPoints);
  body.setHintingPreference(QFont::PreferNoHinting);
  text->setDocumentMargin(0);
  text->setDefaultFont(body);
  text->setIndentWidth(kListIndent);
  text->setDefaultStyleSheet(kStyle);
  text->documentLayout()->setPaintDevice(paper_);
  text->setHtml(html);
  indentBars(*text);
  text->setTextWidth(width);
  return text;
}

void draw(QPainter& painter, const QTextDocument& text, QPointF at) {
  QAbstractTextDocumentLayout::PaintContext context;
  context.palette.setColor(QPalette::Text, Qt::black);
  painter.save();
  painter.translate(at);
  drawBars(painter, text);
  text.documentLayout()->draw(&painter, context);
  painter.restore();
}

}  // namespace orvane
