#include "shell/rich_text_builder.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace orvane {
namespace {

constexpr std::size_t mostCells = 63;
constexpr std::int32_t narrowestCell = 15;
constexpr std::int32_t usualCell = 1440;

bool isAsciiDigit(char c) { return c >= '0' && c <= '9'; }
bool isAsciiLetter(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }

// Bullets are written as any sign of a symbol font, a letter too, which means nothing in another font; numbers
// ("2.", "b)") are kept.
std::string cleanMarker(std::string_view marker) {
  constexpr std::string_view blanks = " \t";
  const auto first = marker.find_first_not_of(blanks);
  if (first == std::string_view::npos) return {};
  const auto text = marker.substr(first, marker.find_last_not_of(blanks) - first + 1);
  const bool number = std::any_of(text.begin(), text.end(), isAsciiDigit) ||
                      (text.size() > 1 && std::any_of(text.begin(), text.end(), isAsciiLetter));
  return number ? std::string(text) : "•";
}

}  // namespace

void RichTextBuilder::startRun(RichCharacterFormat format) { paragraph_.runs.push_back({std::move(format), {}}); }

void RichTextBuilder::endParagraph(const RichParagraphFormat& format, bool inTable) {
  paragraph_.format = format;
  paragraph_.marker = cleanMarker(paragraph_.marker);
  RichParagraph done = std::exchange(paragraph_, {});
  if (inTable) {
    cell_.push_back(std::move(done));
  } else {
    endRow();
    text_.blocks.emplace_back(std::move(done));
  }
}

void RichTextBuilder::endCell(const RichParagraphFormat& format) {
  endParagraph(format, true);
  closeCell();
}

void RichTextBuilder::closeCell() {
  RichCell cell = std::exchange(cell_, {});
  if (row_.size() < mostCells)
    row_.push_back(std::move(cell));
  else
    std::move(cell.begin(), cell.end(), std::back_inserter(row_.back()));
}

void RichTextBuilder::addEdge(std::int32_t edge) {
  if (edges_.size() < mostCells) edges_.push_back(edge);
}

void RichTextBuilder::endRow() {
  if (!cell_.empty()) closeCell();
  if (row_.empty()) return;
  auto edges = rowEdges();
  auto* table = text_.blocks.empty() ? nullptr : std::get_if<RichTable>(&text_.blocks.back());
  if (!table || table->edges != edges)
    table = &std::get<RichTable>(text_.blocks.emplace_back(RichTable{std::move(edges), {}}));
  table->rows.push_back(std::exchange(row_, {}));
}

// Cells that no edge was given for, or none that can be, get one.
std::vector<std::int32_t> RichTextBuilder::rowEdges() const {
  std::vector<std::int32_t> edges;
  std::int32_t left = 0;
  for (std::size_t i = 0; i < row_.size(); ++i) {
    left = i < edges_.size() ? std::max(edges_[i], left + narrowestCell) : left + usualCell;
    edges.push_back(left);
  }
  return edges;
}

RichText RichTextBuilder::take() {
  endRow();
  return std::exchange(text_, {});
}

}  // namespace orvane
