#include "paper/qt_paper.h"

#include "canvas/qt_text.h"
#include "paper/on_the_form.h"
#include "paper/text_layer.h"

namespace orvane {
namespace {

std::string pdfOf(const std::vector<PaperPage>& pages, const PaperNotes& notes) {
  return onTheForm(textLayer(pages), pages, notes);
}

std::string withoutOuterBlanks(const std::string& text) { return fromQt(toQt(text).trimmed()); }

// Two rows of two sides, all of it in the middle of the page.
constexpr std::size_t charactersOnAPage = 2;
constexpr double small = 0.5;
constexpr double gap = 24;  // points

// The front is the larger side: it sets the steps of the grid.
QPointF smallCorner(std::size_t row, std::size_t side) {
  const QSizeF step = sideSizes[0] * pointsPerPixel * small + QSizeF(gap, gap);
  const QSizeF rest = (paperSize + QSizeF(gap, gap) - step * 2) / 2;
  return {rest.width() + step.width() * static_cast<double>(side),
          rest.height() + step.height() * static_cast<double>(row)};
}

}  // namespace

std::string QtPaper::sheet(const PrintedSheet& sheet) {
  std::vector<PaperPage> pages;
  for (std::size_t side = 0; side < sheet.sides.size(); ++side)
    pages.push_back({{side, &sheet.sides[side], 1, middleCorner(side)}});
  return pdfOf(pages, {"Tessaly : " + sheet.character, withoutOuterBlanks(sheet.player)});
}

std::string QtPaper::contactSheet(const std::vector<PrintedSheet>& sheets) {
  std::vector<PaperPage> pages;
  for (std::size_t i = 0; i < sheets.size(); ++i) {
    const std::size_t row = i % charactersOnAPage;
    if (row == 0) pages.emplace_back();
    for (const std::size_t side : {0U, 1U})
      pages.back().push_back({side, &sheets[i].sides[side], small, smallCorner(row, side)});
  }
  return pdfOf(pages, {"Tessaly : planche de personnages", {}});
}

}  // namespace orvane
