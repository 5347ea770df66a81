#include "table/page.h"

namespace orvane {
namespace {

// Millimetres. No usual printer leaves more than 12 blank.
constexpr double kPaperWidth = 210;
constexpr double kPaperHeight = 297;
constexpr double kSide = 15;
constexpr double kTop = 13;
constexpr double kBottom = 19;
constexpr double kFootTop = kPaperHeight - 17;
constexpr double kGutter = 7;
constexpr double kUnderHeading = 1.6;
constexpr double kUnderRule = 1.6;
constexpr double kThickRule = 0.7;
constexpr double kThinRule = 0.15;

}  // namespace

Page::Page(Pdf& pdf, int columns) : pdf_(&pdf), typesetting_(pdf.paper()), columns_(columns), top_(dots(kTop)) {}

double Page::width() const { return dots(kPaperWidth - 2 * kSide); }

double Page::columnWidth() const { return (width() - (columns_ - 1) * dots(kGutter)) / columns_; }

double Page::columnHeight() const { return dots(kPaperHeight - kBottom) - top_; }

double Page::left(int column) const { return dots(kSide) + column * (columnWidth() + dots(kGutter)); }

void Page::drawHeading(const QString& html) {
  const auto text = typesetting_.set(html, width());
  draw(pdf_->painter(), *text, {dots(kSide), top_});
  top_ += text->size().height() + dots(kUnderHeading);
  pdf_->painter().fillRect(QRectF(dots(kSide), top_, width(), dots(kThickRule)), Qt::black);
  top_ += dots(kThickRule + kUnderRule);
}

void Page::drawInColumn(int column, double top, const QTextDocument& text) {
  draw(pdf_->painter(), text, {left(column), top_ + top});
}

void Page::drawFoot(const QString& left, const QString& right) {
  const auto line = [](const char* side, const QString& words) {
    return QStringLiteral("<p class=\"foot\" align=\"%1\">%2</p>").arg(side, words.toHtmlEscaped());
  };
  const double top = dots(kFootTop);
  pdf_->painter().fillRect(QRectF(dots(kSide), top, width(), dots(kThinRule)), Qt::black);
  for (const auto& html : {line("left", left), line("right", right)})
    draw(pdf_->painter(), *typesetting_.set(html, width()), {dots(kSide), top + dots(0.8)});
}

}  // namespace orvane
