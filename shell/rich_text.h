#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

// A formatted text that any screen can show. Measures are twips (1/1440 inch, 15 a pixel), texts UTF-8.
namespace orvane {

struct RichColour {
  std::uint8_t red = 0;
  std::uint8_t green = 0;
  std::uint8_t blue = 0;
  bool operator==(const RichColour&) const = default;
};

struct RichCharacterFormat {
  bool bold = false;
  bool italic = false;
  bool underline = false;
  std::int32_t halfPoints = 24;      // 1 to 3276
  std::optional<RichColour> colour;  // none: whatever colour text has on the screen
  std::string font;                  // empty: the screen's own
};

// Characters of one format; "\n" breaks the line within the paragraph, "\t" goes to the next tab stop.
struct RichRun {
  RichCharacterFormat format;
  std::string text;
};

enum class RichAlignment { Left, Right, Centre, Justified };

// Indents are -31680 to 31680, spaces 0 to 31680.
struct RichParagraphFormat {
  RichAlignment alignment = RichAlignment::Left;
  std::int32_t leftIndent = 0;
  std::int32_t firstLineIndent = 0;  // added to leftIndent
  std::int32_t spaceBefore = 0;
  std::int32_t spaceAfter = 0;
};

struct RichParagraph {
  RichParagraphFormat format;
  std::string marker;         // what stands before the paragraph of a list: "•" or a number; empty elsewhere
  std::vector<RichRun> runs;  // at least one; that of an empty paragraph has no text and gives its height
};

using RichCell = std::vector<RichParagraph>;
using RichRow = std::vector<RichCell>;

struct RichTable {
  std::vector<std::int32_t> edges;  // the right edges of the cells, rising, one for each cell of every row
  std::vector<RichRow> rows;        // rows of 1 to 63 cells
};

struct RichText {
  std::vector<std::variant<RichParagraph, RichTable>> blocks;
};

// Reads the bytes of a rich text file (RTF) in time linear to their number. Damage is read over: what can be understood
// is shown. Fails only where the bytes do not begin as a rich text file does.
RichText readRichText(std::string_view bytes);

}  // namespace orvane
