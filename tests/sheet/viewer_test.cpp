#include "tests/sheet/sheet_fixture.h"

namespace orvane::test {
namespace {

class Viewer : public SheetRun<MemoryFiles> {
 protected:
  std::shared_ptr<frmFeuille> open() {
    auto sheet = std::make_shared<frmFeuille>(globals);
    desktop.perform([&] { sheet->Show(); });
    return sheet;
  }
};

TEST_F(Viewer, LaysItsControlsOutInCentimetres) {
  const auto sheet = open();
  EXPECT_NEAR(sheet->pctController.Width(), 18.097, 0.001);
  EXPECT_NEAR(sheet->pctController.Height(), 1, 1e-5);
  EXPECT_NEAR(sheet->pctMesure.Width(), 17.648, 0.001);
  EXPECT_NEAR(sheet->pctMesure.Height(), 14.235, 0.001);
  EXPECT_NEAR(sheet->HScroll.Top(), 14.235, 0.001);
  EXPECT_NEAR(sheet->VScroll.Left(), 17.648, 0.001);
  EXPECT_NEAR(sheet->VScroll.Height(), 13.235, 0.001);
  EXPECT_NEAR(sheet->pctRecto.Width(), 17.463, 0.001);
  EXPECT_NEAR(sheet->pctRecto.Height(), 27.199, 0.001);
}

TEST_F(Viewer, ShowsTheFrontFromItsTopWithTheBarItNeeds) {
  const auto sheet = open();
  EXPECT_TRUE(sheet->pctRecto.Visible());
  EXPECT_FALSE(sheet->pctVerso.Visible());
  EXPECT_NEAR(sheet->pctRecto.Top(), 1, 1e-5);
  EXPECT_FALSE(sheet->HScroll.Visible());
  EXPECT_EQ(sheet->HScroll.Max(), 0);
  EXPECT_TRUE(sheet->VScroll.Visible());
  EXPECT_EQ(sheet->VScroll.Max(), 14);
  EXPECT_LT(sheet->pctRecto.zOrder(), sheet->VScroll.zOrder());
  EXPECT_LT(sheet->VScroll.zOrder(), sheet->HScroll.zOrder());
  EXPECT_LT(sheet->HScroll.zOrder(), sheet->pctController.zOrder());
}

TEST_F(Viewer, TheBarsMoveTheSideThatIsShown) {
  pictures.width = 12000;
  const auto sheet = open();
  EXPECT_TRUE(sheet->HScroll.Visible());
  EXPECT_EQ(sheet->HScroll.Max(), 4);
  user.scroll(sheet->HScroll, 3);
  user.scroll(sheet->VScroll, 5);
  EXPECT_NEAR(sheet->pctRecto.Left(), -3, 1e-5);
  EXPECT_NEAR(sheet->pctRecto.Top(), -4, 1e-5);
  user.click(sheet->optFeuille(1));
  EXPECT_TRUE(sheet->pctVerso.Visible());
  EXPECT_FALSE(sheet->pctRecto.Visible());
  EXPECT_EQ(sheet->HScroll.Value(), 0);
  EXPECT_EQ(sheet->VScroll.Value(), 0);
  EXPECT_EQ(sheet->pctVerso.Left(), 0);
  user.scroll(sheet->VScroll, 2);
  EXPECT_NEAR(sheet->pctVerso.Top(), -1, 1e-5);
  EXPECT_LT(sheet->pctRecto.zOrder(), sheet->pctVerso.zOrder());
}

TEST_F(Viewer, RoundsTheMaximumToTheNearestCentimetre) {
  constexpr float centimetre = 1440 / 2.54F;
  for (const auto& [difference, maximum] : std::map<float, int>{{12.4F, 12}, {12.6F, 13}, {-2.6F, -3}}) {
    pictures.height = 8325 - 255 + (difference - 1) * centimetre;
    const auto sheet = open();
    EXPECT_EQ(sheet->VScroll.Max(), maximum);
    EXPECT_EQ(sheet->VScroll.Visible(), maximum > 0);
  }
}

TEST_F(Viewer, TheCurrentSheetIsTheOneActivatedLast) {
  const auto first = open();
  const auto second = open();
  EXPECT_EQ(globals.frmCurrentFeuille, second.get());
  desktop.activate(*first);
  EXPECT_EQ(globals.frmCurrentFeuille, first.get());
  desktop.activate(*perso);
  user.activate(*first);
  user.click(first->cmdClose);
  EXPECT_EQ(globals.frmCurrentFeuille, second.get());
  desktop.perform([&] { second->Unload(); });
  EXPECT_EQ(globals.frmCurrentFeuille, nullptr);
}

}  // namespace
}  // namespace orvane::test
