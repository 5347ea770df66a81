#include "editor/martial_restrict.h"
#include "tests/support/run_fixture.h"

namespace orvane::test {
namespace {

class MartialArts : public RunFixture {
 protected:
  enum Rows { BoxeOffensive = 1, BoxeDefensive, LutteOffensive, LutteDefensive, VideOffensive, VideDefensive };

  MartialArts() { enter(frmPersonnage::ArtsMartiaux); }

  void enter(int tab) { user.pick(perso->SSTabPerso, tab); }
  void select(int row) { user.row(perso->lvwMartialArt, row); }
  void step(int index, int times = 1) {
    for (int i = 0; i < times; ++i) user.click(perso->cmdMartialArtModif(index));
  }
  // Points of all rows, pool, technique rights, techniques with the checked ones starred.
  std::string state() const {
    std::string text;
    for (const auto& row : perso->lvwMartialArt.rows()) text += row->SubItems(2) + " ";
    text += "| " + perso->txtMartialArtRest.Text() + " | " + perso->txtMartialTechnicRest.Text() + " |";
    for (const auto& row : perso->lvwMartialTechnic.rows()) text += (row->Checked() ? " *" : " ") + row->Text();
    return text;
  }
  const std::string& told() const { return perso->txtAllDescro.Text(); }

  frmPersonnage* perso = open();
};

const std::string restricted = "!!! Vous devez tenir compte des restrictions en vigueur !!!\r\n\r\n";

TEST_F(MartialArts, EnteringTheTabShowsTheFirstRow) {
  EXPECT_EQ(state(), "0 0 0 0 0 0 | 10 | 0 | Crochet Direct Uppercut");
  EXPECT_EQ(told(), "Boxe, description.");
}

TEST_F(MartialArts, ARestrictionIsToldAndNothingMoves) {
  select(BoxeDefensive);
  step(1);
  EXPECT_EQ(state(), "0 0 0 0 0 0 | 10 | 0 | Garde");
  EXPECT_EQ(told(), restricted + "Boxe, description.");
  select(BoxeOffensive);
  step(1, 2);
  select(BoxeDefensive);
  step(1);
  EXPECT_EQ(state(), "2 1 0 0 0 0 | 7 | 1 | Garde");
  select(BoxeOffensive);
  step(0);
  EXPECT_EQ(told(), restricted + "Boxe, description.");
  EXPECT_EQ(state(), "2 1 0 0 0 0 | 7 | 2 | Crochet Direct Uppercut");
}

TEST_F(MartialArts, AnArtWithOneTermIsFree) {
  select(LutteDefensive);
  step(1, 2);
  EXPECT_EQ(state(), "0 0 0 2 0 0 | 8 | 0 |");
  select(LutteOffensive);
  EXPECT_EQ(state(), "0 0 0 2 0 0 | 8 | 0 | Clé Crochet");  // "O" is no type
}

TEST_F(MartialArts, PointsAboveTheTechniquesBuyNone) {
  step(1, 5);
  EXPECT_EQ(state(), "5 0 0 0 0 0 | 5 | 3 | Crochet Direct Uppercut");
  step(0, 2);
  EXPECT_EQ(state(), "3 0 0 0 0 0 | 7 | 3 | Crochet Direct Uppercut");
  step(0);
  EXPECT_EQ(state(), "2 0 0 0 0 0 | 8 | 2 | Crochet Direct Uppercut");
  step(0, 9);
  EXPECT_EQ(state(), "0 0 0 0 0 0 | 10 | 0 | Crochet Direct Uppercut");
}

TEST_F(MartialArts, ACheckedTechniqueHoldsItsPoint) {
  step(1);
  user.toggle(perso->lvwMartialTechnic, "Direct");
  EXPECT_EQ(state(), "1 0 0 0 0 0 | 9 | 0 | Crochet *Direct Uppercut");
  EXPECT_EQ(told(), "Direct, description.");
  user.toggle(perso->lvwMartialTechnic, "Crochet");  // no right left: the box clears itself
  EXPECT_EQ(state(), "1 0 0 0 0 0 | 9 | 0 | Crochet *Direct Uppercut");
  EXPECT_EQ(told(), "Crochet, description.");
  step(0);
  EXPECT_EQ(told(), "!!! Retirer d'abord une technique martial pour libérer un point !!!");
  user.toggle(perso->lvwMartialTechnic, "Direct");
  step(0);
  EXPECT_EQ(state(), "0 0 0 0 0 0 | 10 | 0 | Crochet Direct Uppercut");
}

TEST_F(MartialArts, ChecksAreKeptByArtAndByWindow) {
  step(1, 2);
  user.toggle(perso->lvwMartialTechnic, "Crochet");
  select(LutteOffensive);
  step(1);
  EXPECT_EQ(state(), "2 0 1 0 0 0 | 7 | 1 | Clé Crochet");  // the same technique, another record
  enter(frmPersonnage::EtatCivil);
  enter(frmPersonnage::ArtsMartiaux);
  select(BoxeOffensive);
  EXPECT_EQ(state(), "2 0 1 0 0 0 | 7 | 1 | *Crochet Direct Uppercut");
  EXPECT_FALSE(data.colMartialArt(1)->colMartialTechnic(1)->bSelected);
  frmPersonnage* other = open();
  EXPECT_FALSE(other->colPersoArt(1)->colMartialTechnic(1)->bSelected);
}

TEST_F(MartialArts, AnotherProfileTakesAllBack) {
  step(1, 2);
  user.toggle(perso->lvwMartialTechnic, "Crochet");
  enter(frmPersonnage::EtatCivil);
  user.pick(perso->cmbProfil, "Patrouilleur");
  enter(frmPersonnage::ArtsMartiaux);
  EXPECT_EQ(state(), "0 0 0 0 0 0 | 10 | 0 | Crochet Direct Uppercut");
}

TEST_F(MartialArts, AnEmptyPoolIsSilent) {
  select(LutteDefensive);
  step(1, 12);
  EXPECT_EQ(state(), "0 0 0 10 0 0 | 0 | 0 |");
  EXPECT_EQ(told(), "Lutte, description.");
}

TEST_F(MartialArts, RowsThatNobodyBuiltAreRefusedWithTheirMessages) {
  const auto row = perso->lvwMartialArt.ListItems(BoxeOffensive);
  row->setSubItems(1, "Neutre");
  EXPECT_FALSE(prcMartialRestrict(globals, *row, 1));
  perso->lvwMartialArt.ListItems(BoxeDefensive)->setSubItems(3, "9");
  row->setSubItems(1, "Offensif");
  EXPECT_FALSE(prcMartialRestrict(globals, *row, 1));
  EXPECT_EQ(boxes(),
            "16|Tessaly|Error : type of Martial Art unknown.\n"
            "16|Tessaly|Error : Values for 2 Martial technic types not found.\n");
}

TEST_F(MartialArts, WithoutAnyArtTheTabIsEmptyAndTheArrowsAnswer) {
  data.colMartialArt = {};
  frmPersonnage* empty = open();
  user.pick(empty->SSTabPerso, frmPersonnage::ArtsMartiaux);
  EXPECT_EQ(empty->txtMartialTechnicRest.Text() + empty->txtAllDescro.Text(), "");
  user.click(empty->cmdMartialArtModif(1));
  EXPECT_EQ(empty->txtAllDescro.Text(), "!!! Pas d'art martial sélectionné !!!");
  EXPECT_EQ(boxes(), "");
}

}  // namespace
}  // namespace orvane::test
