#include "shell/rich_text_html.h"

#include <algorithm>
#include <utility>

#include "surface/failure.h"

namespace orvane {
namespace {

// What a window lays out within two seconds. It lays out a paragraph at once, and in more than linear time.
constexpr std::size_t mostPieces = 50'000;
constexpr std::size_t longestParagraph = 50'000;  // bytes
constexpr std::size_t mostRuns = 10'000;          // of a paragraph
// A table is laid out whole before any of it is shown; so a long one goes on in another.
constexpr std::size_t mostRows = 500;
constexpr std::size_t mostCells = 63;
constexpr std::int32_t narrowestCell = 15;
constexpr std::int32_t usualCell = 1440;
constexpr std::int32_t usualHang = 360;

constexpr std::string_view pageStart = "<body style=\"font-size:12pt;white-space:pre-wrap\">";
constexpr std::string_view tableStart = "<table border=\"1\" cellspacing=\"0\" cellpadding=\"2\">";

std::string pixels(std::int32_t twips) { return std::to_string((twips + (twips < 0 ? -7 : 7)) / 15); }

std::string indentStyle(const RichParagraph& paragraph, bool marked) {
  const bool needsHang = marked && paragraph.firstLineIndent >= 0;
  const auto left = paragraph.leftIndent + (needsHang ? usualHang : 0);
  const auto first = needsHang ? -usualHang : paragraph.firstLineIndent;
  return "margin:" + pixels(paragraph.spaceBefore) + "px 0px " + pixels(paragraph.spaceAfter) + "px " + pixels(left) +
         "px;text-indent:" + pixels(first) + "px";
}

std::string escaped(std::string_view text) {
  std::string html;
  for (const char c : text) {
    if (c == '<')
      html += "&lt;";
    else if (c == '&')
      html += "&amp;";
    else if (c == '"')
      html += "&quot;";
    else if (c == '\n')
      html += "<br>";
    else
      html += c;
  }
  return html;
}

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

void RichTextHtml::addText(const std::string& style, std::string_view text) {
  const bool fresh = runs_.empty() || runs_.back().style != style;
  if (fresh) runs_.push_back({style, {}});
  if (fresh || text == "\n") countPiece();
  runs_.back().html += escaped(text);
}

void RichTextHtml::endParagraph(const RichParagraph& paragraph, const std::string& style) {
  std::string html = takeParagraph(paragraph, style);
  if (paragraph.inTable) {
    cell_ += html;
    return;
  }
  endRow();
  closeTable();
  html_ += html;
}

// A paragraph of one run goes without a span: most have no more, and the window spends its time on each piece.
std::string RichTextHtml::takeParagraph(const RichParagraph& paragraph, const std::string& style) {
  if (runs_.empty()) addText(style, "\u00A0");  // an empty one loses its height, and in a table stands twice
  if (paragraph.bullet && marker_.empty()) marker_ = "•";
  const std::string marker = cleanMarker(std::exchange(marker_, {}));
  if (!marker.empty()) runs_.front().html.insert(0, escaped(marker + '\t'));
  const auto runs = std::exchange(runs_, {});
  const bool plain = runs.size() == 1;
  std::string html = "<p align=\"" + std::string(paragraph.alignment) + "\" style=\"" + (plain ? runs[0].style : "") +
                     indentStyle(paragraph, !marker.empty()) + "\">";
  std::size_t length = 0;
  for (const Run& run : runs) {
    length += run.html.size();
    html += plain || run.style.empty() ? run.html : "<span style=\"" + run.style + "\">" + run.html + "</span>";
  }
  if (length > longestParagraph || runs.size() > mostRuns)
    throw Failure("Un paragraphe dépasse 50 Ko ou 10 000 changements de style.");
  return html + "</p>";
}

void RichTextHtml::endCell(const RichParagraph& paragraph, const std::string& style) {
  cell_ += takeParagraph(paragraph, style);
  closeCell();
}

void RichTextHtml::closeCell() {
  countPiece();
  std::string cell = std::exchange(cell_, {});
  if (row_.size() < mostCells)
    row_.push_back(std::move(cell));
  else
    row_.back() += cell;
}

void RichTextHtml::addEdge(std::int32_t edge) {
  if (edges_.size() < mostCells) edges_.push_back(edge);
}

void RichTextHtml::endRow() {
  if (!cell_.empty()) closeCell();
  if (row_.empty()) return;
  const auto edges = rowEdges();
  if (edges != tableEdges_ || tableRows_ == mostRows) {
    closeTable();
    html_ += tableStart;
    tableEdges_ = edges;
  }
  ++tableRows_;
  html_ += "<tr>";
  std::int32_t left = 0;
  for (std::size_t i = 0; i < row_.size(); ++i)
    html_ += "<td width=\"" + pixels(edges[i] - std::exchange(left, edges[i])) + "\">" + row_[i] + "</td>";
  html_ += "</tr>";
  row_.clear();
}

void RichTextHtml::closeTable() {
  if (!tableEdges_.empty()) html_ += "</table>";
  tableEdges_.clear();
  tableRows_ = 0;
}

// Cells that no edge was given for, or none that can be, get one.
std::vector<std::int32_t> RichTextHtml::rowEdges() const {
  std::vector<std::int32_t> edges;
  std::int32_t left = 0;
  for (std::size_t i = 0; i < row_.size(); ++i) {
    left = i < edges_.size() ? std::max(edges_[i], left + narrowestCell) : left + usualCell;
    edges.push_back(left);
  }
  return edges;
}

void RichTextHtml::countPiece() {
  if (++pieces_ > mostPieces) throw Failure("Il a plus de 50 000 lignes, cellules et changements de style.");
}

std::string RichTextHtml::take() {
  endRow();
  closeTable();
  return std::string(pageStart) + std::exchange(html_, {}) + "</body>";
}

}  // namespace orvane
