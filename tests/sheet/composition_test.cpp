#include <algorithm>

#include "tests/sheet/sheet_fixture.h"

namespace orvane::test {
namespace {

// Where each field of a whole character stands is for the golden scripts and the bitmaps of the examples.
class Composition : public SheetRun {
 protected:
  // Shows this many skills in place of those of the profile; the texts of the three columns of names, then of levels.
  std::string skillColumns(int count) {
    perso->lvwSkillGen.Clear();
    for (int i = 1; i <= count; ++i) {
      const auto row = perso->lvwSkillGen.Add();
      row->setText("T" + std::to_string(i));
      row->setSubItems(1, std::to_string(i));
      row->setSubItems(2, "1");
    }
    const auto sheet = visualise();
    std::string text;
    for (auto* boxes : {&sheet->shpNames, &sheet->shpValues})
      for (int i = 0; i < 3; ++i) text += printedIn(sheet->pctVerso, (*boxes)(i)) + "/";
    while (text.find("10 ") != std::string::npos) text.erase(text.find("10 "), 3);
    std::replace(text.begin(), text.end(), '\n', ' ');
    return text;
  }
};

TEST_F(Composition, LeavesOutWhatWasNotGiven) {
  perso->txtPoids.setText("80");
  auto sheet = visualise();
  EXPECT_EQ(printedIn(sheet->pctRecto, sheet->shpTaillePoids), "10 / 80\n");
  EXPECT_EQ(printedIn(sheet->pctRecto, sheet->shpOtherLang), "");
  perso->txtPoids.setText("");
  perso->txtOtherLang.setText("autre");
  sheet = visualise();
  EXPECT_EQ(printedIn(sheet->pctRecto, sheet->shpTaillePoids), "");
  EXPECT_EQ(printedIn(sheet->pctRecto, sheet->shpOtherLang), "10 autre\n");
  for (const auto* control : sheet->controls())
    if (const auto* box = dynamic_cast<const Shape*>(control)) {
      EXPECT_EQ(box->BorderStyle(), 0) << box->id();
    }
}

TEST_F(Composition, PrintsTheContactsThatHaveAValue) {
  for (const auto& contact : {clsContact{"Bob", 2, 0, "Au port."}, {"Inconnu", 0, 0, ""}, {"Zoé", 0, 3, "Ici."}})
    perso->colContact.Add(std::make_shared<clsContact>(contact));
  const auto sheet = visualise();
  EXPECT_EQ(printedIn(sheet->pctRecto, sheet->shpContact),
            "8 Bob ( Info: 2 - Réact: 0 ) Au port.\n8 Zoé ( Info: 0 - Réact: 3 ) Ici.\n");
}

TEST_F(Composition, ShowsAChosenPowerAndHidesADrawnOne) {
  EXPECT_EQ(printedMutation(*visualise()), "10 Alpha Plus 7\n10 Peau épaisse\n10 Peau épaisse, description.\n");
  perso->cmbMutaCateg.setListIndex(3);
  ASSERT_EQ(perso->cmbMutaName.ListIndex(), -1);
  EXPECT_EQ(printedMutation(*visualise()), "") << "a category without powers";
  perso->cmbMutaCateg.setListIndex(0);
  perso->cmdMutaRandomChoice.setEnabled(false);
  EXPECT_EQ(printedMutation(*visualise()), "");
  perso->chkMuta.setValue(0);
  EXPECT_EQ(printedMutation(*visualise()), "10 Aucune mutation\n");
}

TEST_F(Composition, PrintsALongDescriptionSmaller) {
  std::string text;
  for (int i = 0; i < 26; ++i) text += "éèàùçôîêâ ";
  for (const char* size : {"10", "8 "}) {
    data.colMutation.Add(std::make_shared<clsMutation>(clsMutation{"Alpha", "Plus", "Long", text, 9}));
    for (const int category : {1, 0}) perso->cmbMutaCateg.setListIndex(category);
    perso->cmbMutaName.setListIndex(perso->cmbMutaName.ListCount() - 1);
    const auto sheet = visualise();
    EXPECT_EQ(printedIn(sheet->pctRecto, sheet->shpMutaDescro).substr(0, 2), size);
    EXPECT_EQ(sheet->pctRecto.FontSize(), 10);
    text += "!";
  }
}

TEST_F(Composition, SpreadsTheSkillsOverThreeColumns) {
  EXPECT_EQ(skillColumns(1), "//T1 ///1 /");
  EXPECT_EQ(skillColumns(2), "//T1 T2 ///1 2 /");
  EXPECT_EQ(skillColumns(3), "T1 /T2 /T3 /1 /2 /3 /");
  EXPECT_EQ(skillColumns(8), "T1 T2 /T3 T4 /T5 T6 T7 T8 /1 2 /3 4 /5 6 7 8 /");
}

TEST_F(Composition, AFreshSheetTakesThePlaceOfItsNameOnly) {
  auto* const other = open();
  name(*other, "Eva");
  user.click(other->cmdPrintPreview);
  const frmFeuille* const eva = globals.frmCurrentFeuille;
  const auto first = visualise();
  const auto second = visualise();
  EXPECT_TRUE(first->wasUnloaded());
  EXPECT_TRUE(second->isLoaded() && eva->isLoaded());
  name(*perso, "Luce");
  EXPECT_EQ(visualise()->Caption(), "Luce");
  EXPECT_TRUE(second->isLoaded());
  perso->txtLang(2).setText("1");
  EXPECT_EQ(visualise(), nullptr) << "no longer valid";
  EXPECT_EQ(globals.frmCurrentFeuille->Caption(), "Luce");
}

}  // namespace
}  // namespace orvane::test
