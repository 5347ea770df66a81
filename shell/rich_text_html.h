#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace orvane {

// How a paragraph lies on the page, in twips (1/1440 inch, 15 a pixel).
struct RichParagraph {
  std::string_view alignment = "left";  // as HTML names it
  std::int32_t leftIndent = 0;
  std::int32_t firstLineIndent = 0;  // added to leftIndent
  std::int32_t spaceBefore = 0;
  std::int32_t spaceAfter = 0;
  bool inTable = false;
  bool bullet = false;  // where no marker was given
};

// Writes the HTML of a rich text from its pieces, in the order of reading. Texts are UTF-8, styles CSS that ends in
// ";". Fails where there is more than a window can lay out while its user waits.
class RichTextHtml {
 public:
  // "\n" breaks the line within the paragraph.
  void addText(const std::string& style, std::string_view text);
  // What stands before the paragraph of a list.
  void addMarker(std::string_view text) { marker_ += text; }
  bool inParagraph() const { return !runs_.empty() || !marker_.empty(); }

  // The style gives an empty paragraph its height. A paragraph outside a table also ends a row that nobody ended.
  void endParagraph(const RichParagraph& paragraph, const std::string& style);
  void endCell(const RichParagraph& paragraph, const std::string& style);

  void startRow() { edges_.clear(); }
  // The right edge of the next cell, twips.
  void addEdge(std::int32_t edge);
  void endRow();

  std::string take();

 private:
  struct Run {
    std::string style;
    std::string html;
  };

  std::string takeParagraph(const RichParagraph& paragraph, const std::string& style);
  void closeCell();
  void closeTable();
  std::vector<std::int32_t> rowEdges() const;
  void countPiece();

  std::string html_;
  std::vector<Run> runs_;
  std::string marker_;
  std::string cell_;
  std::vector<std::string> row_;
  std::vector<std::int32_t> edges_;
  std::vector<std::int32_t> tableEdges_;  // of the table that is open; empty without one
  std::size_t tableRows_ = 0;
  std::size_t pieces_ = 0;
};

}  // namespace orvane
