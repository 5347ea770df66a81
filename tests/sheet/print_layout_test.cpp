#include "sheet/print_layout.h"

#include <gtest/gtest.h>

#include "sheet/line_marker.h"

namespace orvane {
namespace {

// A letter is 10 wide, a line 20 high.
const TextMeasures letters{[](std::string_view text) { return 10 * static_cast<float>(text.size()); },
                           [](std::string_view) { return 20.0F; }};

// Lines between bars, with their places; then what was left and lost.
std::string shown(const PrintLayout& layout) {
  std::string text;
  for (const auto& line : layout.lines)
    text += std::to_string(static_cast<int>(line.x)) + "," + std::to_string(static_cast<int>(line.y)) + "|" +
            line.text + "| ";
  if (!layout.rest.empty()) text += "rest<" + layout.rest + "> ";
  if (!layout.lost.empty()) text += "lost<" + layout.lost + ">";
  return text;
}

// Ten letters wide, three lines high, at 100, 200.
std::string laidOut(const std::string& text, LayoutBox box = {100, 200, 100, 60}) {
  return shown(layOut(text, box, letters));
}

constexpr LayoutBox oneLine{100, 200, 100, 39};

TEST(PrintLayout, BreaksAtBlanksAndFillsTheLastLineWithBlanks) {
  EXPECT_EQ(laidOut(""), "");
  EXPECT_EQ(laidOut("un deux trois"), "100,200|un deux| 100,220|trois     | ");
  EXPECT_EQ(laidOut("un  deux"), "100,200|un  deux  | ");
  EXPECT_EQ(laidOut("   un"), "100,200|un        | ");
  EXPECT_EQ(laidOut("     "), "");
  // An exact fit fits.
  EXPECT_EQ(laidOut("abcde fghi"), "100,200|abcde fghi| ");
  EXPECT_EQ(laidOut("abcde fghij"), "100,200|abcde| 100,220|fghij     | ");
}

TEST(PrintLayout, MarkersAndLineEndsEndLines) {
  EXPECT_EQ(laidOut("un [CR] deux [CR] "), "100,200|un| 100,220|deux| ");
  EXPECT_EQ(laidOut("un\r\ndeux\ntrois\r"), "100,200|un| 100,220|deux| 100,240|trois| ");
  EXPECT_EQ(laidOut("un [CR] [CR] deux [CR] "), "100,200|un| 100,220|| 100,240|deux| ");
  EXPECT_EQ(laidOut(" [CR] un [CR] "), "100,200|| 100,220|un| ");
  EXPECT_EQ(laidOut("un[CR] deux [cr]"), "100,200|un[CR]| 100,220|deux [cr] | ");
}

TEST(PrintLayout, LfCrIsFoundBeforeCrLf) {
  const std::string marker(lineMarker);
  EXPECT_EQ(withLineMarkers("a\r\n\r\nb"), "a" + marker + marker + marker + "b");
  EXPECT_EQ(withLineMarkers("a\n\n\r\rb"), "a" + marker + marker + marker + "b");
}

TEST(PrintLayout, AlignsRightByTheWholeLineBlanksIncluded) {
  const LayoutBox right{100, 200, 100, 60, true};
  EXPECT_EQ(laidOut("12\r\n-3\r\n", right), "180,200|12| 180,220|-3| ");
  EXPECT_EQ(laidOut("12", right), "100,200|12        | ");
}

TEST(PrintLayout, AFullBoxDropsTheWordThatOverflowedItAndTheRest) {
  EXPECT_EQ(laidOut("un [CR] deux [CR] trois [CR] quatre cinq"),
            "100,200|un| 100,220|deux| 100,240|trois| rest<quatre cinq> lost<quatre cinq>");
  EXPECT_EQ(laidOut("quatre cinq\r\nsix", oneLine), "100,200|quatre| rest<[CR] six> lost<cinq six>");
  // Nothing but line ends is left: no word was lost.
  EXPECT_EQ(laidOut("un [CR] [CR]  ", oneLine), "100,200|un| rest<[CR]  > ");
}

TEST(PrintLayout, TheGapOfTheLastLineCountsToo) {
  EXPECT_EQ(laidOut("a [CR] b [CR] c [CR] ", {0, 0, 100, 75, false, 5}), "0,0|a| 0,25|b| 0,50|c| ");
  EXPECT_EQ(laidOut("a [CR] b [CR] c [CR] ", {0, 0, 100, 74, false, 5}), "0,0|a| 0,25|b| rest<c [CR] > lost<c>");
  EXPECT_EQ(laidOut("a [CR] b", {0, 0, 100, 1}), "0,0|a| rest<b> lost<b>");
}

TEST(PrintLayout, AWordWiderThanItsBoxEndsTheText) {
  EXPECT_EQ(laidOut("abcdefghijk etc.", oneLine), "100,200|| rest<etc.> lost<abcdefghijk etc.>");
  EXPECT_EQ(laidOut("abcdefghijk l [CR] etc."), "100,200|| rest<[CR] etc.> lost<abcdefghijk l etc.>");
  EXPECT_EQ(laidOut("abcdefghijk"), "100,200|| lost<abcdefghijk>");
  EXPECT_EQ(laidOut("ab abcdefghijk"), "100,200|ab| lost<abcdefghijk>");
  // As wide as the box: too wide for the first line, which counts the blank in front.
  EXPECT_EQ(laidOut("abcdefghij"), "100,200|| 100,220|abcdefghij| ");
  EXPECT_EQ(laidOut("abcdefghij", oneLine), "100,200|| lost<abcdefghij>");
}

TEST(PrintLayout, EndsWithAFontWhoseBlanksHaveNoWidth) {
  const TextMeasures flat{[](std::string_view) { return 0.0F; }, letters.height};
  EXPECT_EQ(shown(layOut("un deux", {0, 0, 100, 60}, flat)), "0,0|un deux| ");
}

TEST(PrintLayout, MeasuresAnEndlessTextInStepWithItsLength) {
  std::size_t measured = 0;
  const TextMeasures counting{[&](std::string_view text) {
                                measured += text.size();
                                return letters.width(text);
                              },
                              letters.height};
  std::string text;
  for (int i = 0; i < 20000; ++i) text += "mot ";
  EXPECT_EQ(layOut(text, {0, 0, 100, 20.0F * 20000}, counting).lines.size(), 10000U);
  EXPECT_LT(measured, 10 * text.size());
}

}  // namespace
}  // namespace orvane
