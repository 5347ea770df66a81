#include "tests/sheet/sheet_run.h"

namespace orvane::test {
namespace {

using Viewer = SheetRun;

// The script that shows a sheet has the rest.
TEST_F(Viewer, PutsItsBarsAtTheEdgesOfTheRoom) {
  const auto sheet = blankSheet();
  EXPECT_EQ(sheet->HScroll.Left(), 0);
  EXPECT_EQ(sheet->HScroll.Top(), sheet->pctMesure.Height());
  EXPECT_EQ(sheet->HScroll.Width(), sheet->pctMesure.Width());
  EXPECT_EQ(sheet->VScroll.Left(), sheet->pctMesure.Width());
  EXPECT_EQ(sheet->VScroll.Top(), 1);
  EXPECT_NEAR(sheet->VScroll.Height(), 13.235, 0.001);
}

TEST_F(Viewer, TheBarsMoveTheSideThatIsShown) {
  EXPECT_FALSE(blankSheet()->HScroll.Visible());
  pictures.width = 12000;
  const auto sheet = blankSheet();
  EXPECT_TRUE(sheet->HScroll.Visible());
  EXPECT_EQ(sheet->HScroll.Max(), 4);
  EXPECT_LT(sheet->pctRecto.zOrder(), sheet->VScroll.zOrder());
  EXPECT_LT(sheet->VScroll.zOrder(), sheet->HScroll.zOrder());
  EXPECT_LT(sheet->HScroll.zOrder(), sheet->pctController.zOrder());
  user.scroll(sheet->HScroll, 3);
  user.scroll(sheet->VScroll, 5);
  EXPECT_NEAR(sheet->pctRecto.Left(), -3, 1e-5);
  EXPECT_NEAR(sheet->pctRecto.Top(), -4, 1e-5);
  user.click(sheet->optFeuille(1));
  EXPECT_TRUE(sheet->pctVerso.Visible() && !sheet->pctRecto.Visible());
  EXPECT_EQ(sheet->HScroll.Value(), 0);
  EXPECT_EQ(sheet->VScroll.Value(), 0);
  EXPECT_EQ(sheet->pctVerso.Left(), 0);
  user.scroll(sheet->VScroll, 2);
  EXPECT_NEAR(sheet->pctVerso.Top(), -1, 1e-5);
  EXPECT_LT(sheet->pctRecto.zOrder(), sheet->pctVerso.zOrder());
}

TEST_F(Viewer, RoundsTheMaximumToTheNearestCentimetre) {
  constexpr float centimetre = 1440 / 2.54F;
  for (const auto& [difference, maximum] : {std::pair{12.4F, 12}, {12.6F, 13}, {-2.6F, -3}}) {
    pictures.height = 8325 - 255 + (difference - 1) * centimetre;
    const auto sheet = blankSheet();
    EXPECT_EQ(sheet->VScroll.Max(), maximum);
    EXPECT_EQ(sheet->VScroll.Visible(), maximum > 0);
  }
}

TEST_F(Viewer, TheCurrentSheetIsTheOneActivatedLast) {
  const auto first = blankSheet();
  const auto second = blankSheet();
  user.activate(*first);
  EXPECT_EQ(globals().frmCurrentFeuille, first.get());
  user.activate(*perso);
  user.click(first->cmdClose);
  EXPECT_EQ(globals().frmCurrentFeuille, second.get());
  user.close(*second);
  EXPECT_EQ(globals().frmCurrentFeuille, nullptr);
}

}  // namespace
}  // namespace orvane::test
