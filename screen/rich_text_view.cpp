#include "screen/rich_text_view.h"

#include <algorithm>
#include <utility>
#include <variant>

#include <QTextCursor>
#include <QTextTable>

#include "screen/readable_colours.h"

namespace orvane {
namespace {

constexpr double twipsAPixel = 15;
constexpr std::int32_t usualHang = 360;

QColor turnedOver(const QColor& colour) {
  return QColor::fromHslF(std::max(0.0F, colour.hslHueF()), colour.hslSaturationF(), 1 - colour.lightnessF()).toRgb();
}

class Writer {
 public:
  Writer(const QPalette& palette, QTextDocument& document) : palette_(palette), cursor_(&document) {}

  void write(const RichText& text) {
    cursor_.beginEditBlock();
    for (const auto& block : text.blocks) std::visit([this](const auto& one) { add(one); }, block);
    cursor_.endEditBlock();
  }

 private:
  void add(const RichParagraph& paragraph) {
    const auto block = blockFormat(paragraph);
    const auto first = characterFormat(paragraph.runs.front().format);
    if (std::exchange(freshBlock_, false)) {
      cursor_.setBlockFormat(block);
      cursor_.setBlockCharFormat(first);
    } else {
      cursor_.insertBlock(block, first);
    }
    if (!paragraph.marker.empty()) cursor_.insertText(QString::fromStdString(paragraph.marker) + '\t', first);
    for (const auto& run : paragraph.runs) add(run);
  }

  void add(const RichRun& run) {
    QString text = QString::fromStdString(run.text);
    text.replace('\n', QChar::LineSeparator);
    cursor_.insertText(text, characterFormat(run.format));
  }

  void add(const RichTable& table) {
    const auto columns = static_cast<int>(table.edges.size());
    auto* shown = cursor_.insertTable(static_cast<int>(table.rows.size()), columns, tableFormat(table));
    for (int row = 0; row < shown->rows(); ++row)
      for (int column = 0; column < columns; ++column) {
        cursor_ = shown->cellAt(row, column).firstCursorPosition();
        freshBlock_ = true;
        for (const auto& paragraph : table.rows[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)])
          add(paragraph);
      }
    cursor_.movePosition(QTextCursor::End);
    freshBlock_ = true;
  }

  static QTextBlockFormat blockFormat(const RichParagraph& paragraph) {
    constexpr Qt::Alignment alignments[] = {Qt::AlignLeft, Qt::AlignRight, Qt::AlignHCenter, Qt::AlignJustify};
    const auto& format = paragraph.format;
    const bool marked = !paragraph.marker.empty();
    const bool needsHang = marked && format.firstLineIndent >= 0;
    const double hang = (needsHang ? -usualHang : format.firstLineIndent) / twipsAPixel;
    const double left = (needsHang ? format.leftIndent + usualHang : format.leftIndent) / twipsAPixel;
    QTextBlockFormat block;
    block.setAlignment(alignments[static_cast<int>(format.alignment)]);
    block.setLeftMargin(left);
    block.setTextIndent(hang);
    block.setTopMargin(format.spaceBefore / twipsAPixel);
    block.setBottomMargin(format.spaceAfter / twipsAPixel);
    // Tab stops count from the start of the line: the text after a marker begins where the lines below it do.
    if (marked) block.setTabPositions({QTextOption::Tab(-hang, QTextOption::LeftTab)});
    return block;
  }

  QTextCharFormat characterFormat(const RichCharacterFormat& format) const {
    QTextCharFormat shown;
    if (!format.font.empty()) shown.setFontFamilies({QString::fromStdString(format.font)});
    shown.setFontPointSize(format.halfPoints / 2.0);
    shown.setFontWeight(format.bold ? QFont::Bold : QFont::Normal);
    shown.setFontItalic(format.italic);
    shown.setFontUnderline(format.underline);
    if (format.colour)
      if (const auto colour = readableColour(*format.colour, palette_.color(QPalette::Base)))
        shown.setForeground(*colour);
    return shown;
  }

  QTextTableFormat tableFormat(const RichTable& table) const {
    QList<QTextLength> widths;
    std::int32_t left = 0;
    for (const auto edge : table.edges)
      widths.append(QTextLength(QTextLength::FixedLength, (edge - std::exchange(left, edge)) / twipsAPixel));
    QTextTableFormat format;
    format.setColumnWidthConstraints(widths);
    format.setCellPadding(2);
    format.setCellSpacing(0);
    format.setBorder(1);
    format.setBorderCollapse(true);
    format.setBorderStyle(QTextFrameFormat::BorderStyle_Solid);
    format.setBorderBrush(palette_.color(QPalette::Mid));
    return format;
  }

  const QPalette& palette_;
  QTextCursor cursor_;
  bool freshBlock_ = true;  // the cursor stands in a block that holds nothing yet
};

}  // namespace

std::optional<QColor> readableColour(const RichColour& colour, const QColor& background) {
  if (colour == RichColour{}) return {};
  const QColor given(colour.red, colour.green, colour.blue);
  for (const QColor& candidate : {given, turnedOver(given)})
    if (contrast(candidate, background) >= readableContrast) return candidate;
  return {};
}

void showRichText(const RichText& text, const QPalette& palette, QTextDocument& document) {
  document.setUndoRedoEnabled(false);
  document.clear();
  Writer(palette, document).write(text);
}

}  // namespace orvane
