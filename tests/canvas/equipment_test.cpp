#include "canvas/qt_pictures.h"
#include "sheet/equipment_text.h"
#include "sheet/print_layout.h"
#include "tests/canvas/gui.h"

namespace orvane::test {
namespace {

// The box of the paper form was made for this text.
TEST(Equipment, FitsItsBoxWholeInTheRealFont) {
  const auto verso = QtPictures().open("verso");
  verso->setFont("Times New Roman", 9);
  const TextMeasures measures{[&](std::string_view text) { return verso->TextWidth(text); },
                              [&](std::string_view text) { return verso->TextHeight(text); }};
  const auto layout = layOut(equipmentText(), {3690, 10215, 5985, 3765, false, 50}, measures);
  EXPECT_EQ(layout.lost, "");
  EXPECT_EQ(layout.rest, "");
  ASSERT_FALSE(layout.lines.empty());
  const auto& last = layout.lines.back();
  EXPECT_NE(last.text.find("électronique portable)"), std::string::npos);
  EXPECT_LE(last.y + verso->TextHeight(""), 10215 + 3765);
}

}  // namespace
}  // namespace orvane::test
