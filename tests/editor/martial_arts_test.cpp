#include "editor/martial_restrict.h"
#include "tests/support/run_fixture.h"

namespace orvane::test {
namespace {

class MartialArts : public RunFixture {
 protected:
  enum Rows { BoxeOffensive = 1, BoxeDefensive, LutteOffensive, LutteDefensive };

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

  frmPersonnage* perso = open();
};

TEST_F(MartialArts, AnArtWithOneTermIsFree) {
  select(LutteDefensive);
  step(1, 2);
  EXPECT_EQ(state(), "0 0 0 2 0 0 | 8 | 0 |");
  select(LutteOffensive);
  EXPECT_EQ(state(), "0 0 0 2 0 0 | 8 | 0 | Clé Crochet") << "\"O\" is no type";
}

TEST_F(MartialArts, PointsAboveTheTechniquesBuyNone) {
  step(1, 5);
  EXPECT_EQ(state(), "5 0 0 0 0 0 | 5 | 3 | Crochet Direct Uppercut");
  step(0, 3);
  EXPECT_EQ(state(), "2 0 0 0 0 0 | 8 | 2 | Crochet Direct Uppercut");
}

TEST_F(MartialArts, ACheckedTechniqueHoldsItsPoint) {
  step(1);
  for (const char* technic : {"Direct", "Crochet"}) user.toggle(perso->lvwMartialTechnic, technic);
  EXPECT_EQ(state(), "1 0 0 0 0 0 | 9 | 0 | Crochet *Direct Uppercut") << "no right left: the box clears itself";
  EXPECT_EQ(perso->txtAllDescro.Text(), "Crochet, description.");
  step(0);
  EXPECT_EQ(perso->txtAllDescro.Text(), "!!! Retirer d'abord une technique martial pour libérer un point !!!");
  user.toggle(perso->lvwMartialTechnic, "Direct");
  step(0);
  EXPECT_EQ(state(), "0 0 0 0 0 0 | 10 | 0 | Crochet Direct Uppercut");
}

TEST_F(MartialArts, ChecksAreKeptByArtAndGoWithTheProfile) {
  step(1, 2);
  user.toggle(perso->lvwMartialTechnic, "Crochet");
  select(LutteOffensive);
  step(1);
  EXPECT_EQ(state(), "2 0 1 0 0 0 | 7 | 1 | Clé Crochet") << "the same technique, another record";
  select(BoxeOffensive);
  EXPECT_EQ(state(), "2 0 1 0 0 0 | 7 | 1 | *Crochet Direct Uppercut");
  EXPECT_FALSE(data.colMartialArt(1)->colMartialTechnic(1)->bSelected);
  enter(frmPersonnage::EtatCivil);
  user.pick(perso->cmbProfil, "Patrouilleur");
  enter(frmPersonnage::ArtsMartiaux);
  EXPECT_EQ(state(), "0 0 0 0 0 0 | 10 | 0 | Crochet Direct Uppercut");
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

TEST(MartialRestrict, TheSideOfTheLargerTermLeadsByFullGroups) {
  struct Rule {
    std::int16_t RO, RD;
    std::vector<std::pair<std::int16_t, std::int16_t>> allowed, refused;
  };
  for (const auto& [RO, RD, allowed, refused] : std::vector<Rule>{
           {2, 1, {{3, 1}, {4, 2}}, {{1, 1}, {3, 2}}},
           {1, 2, {{0, 5}, {1, 2}}, {{1, 1}, {2, 3}}},
           {1, 1, {{1, 0}, {3, 3}}, {{0, 1}}},
           {3, 2, {{0, 1}, {3, 3}}, {{0, 2}, {3, 4}}},
       }) {
    for (const auto& [iO, iD] : allowed)
      EXPECT_TRUE(restrictionAllows(RO, RD, iO, iD)) << RO << ':' << RD << " with " << iO << ',' << iD;
    for (const auto& [iO, iD] : refused)
      EXPECT_FALSE(restrictionAllows(RO, RD, iO, iD)) << RO << ':' << RD << " with " << iO << ',' << iD;
  }
}

}  // namespace
}  // namespace orvane::test
