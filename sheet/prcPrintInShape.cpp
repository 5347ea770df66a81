#include "sheet/prcPrintInShape.h"

#include "sheet/print_layout.h"

namespace orvane {

void prcPrintInShape(std::string& sText, PictureBox& pctSheet, Shape& shpBox, std::int16_t iAlign, std::int16_t iGap) {
  const TextMeasures measures{[&](std::string_view text) { return pctSheet.TextWidth(text); },
                              [&](std::string_view text) { return pctSheet.TextHeight(text); }};
  const LayoutBox box{shpBox.Left(),   shpBox.Top(), shpBox.Width(),
                      shpBox.Height(), iAlign != 0,  static_cast<float>(iGap)};
  auto layout = layOut(sText, box, measures);
  for (const auto& line : layout.lines) {
    pctSheet.setCurrentX(line.x);
    pctSheet.setCurrentY(line.y);
    pctSheet.Print(line.text);
  }
  if (!layout.lost.empty()) pctSheet.noteLost(shpBox.id(), std::move(layout.lost));
  sText = std::move(layout.rest);
  shpBox.setBorderStyle(0);
}

}  // namespace orvane
