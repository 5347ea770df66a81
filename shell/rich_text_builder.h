#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "shell/rich_text.h"

namespace orvane {

// Puts a rich text together from its pieces, in the order of reading.
class RichTextBuilder {
 public:
  // Text needs a run to go to; the end of a paragraph or cell ends it.
  bool hasRun() const { return !paragraph_.runs.empty(); }
  void startRun(RichCharacterFormat format);
  void addText(std::string_view text) { paragraph_.runs.back().text += text; }
  void addMarker(std::string_view text) { paragraph_.marker += text; }
  bool hasMarker() const { return !paragraph_.marker.empty(); }

  // Both need a run. A paragraph outside a table also ends a row that nobody ended.
  void endParagraph(const RichParagraphFormat& format, bool inTable);
  void endCell(const RichParagraphFormat& format);

  void startRow() { edges_.clear(); }
  void addEdge(std::int32_t edge);
  void endRow();

  RichText take();

 private:
  void closeCell();
  std::vector<std::int32_t> rowEdges() const;

  RichText text_;
  RichParagraph paragraph_;
  RichCell cell_;
  RichRow row_;
  std::vector<std::int32_t> edges_;
};

}  // namespace orvane
