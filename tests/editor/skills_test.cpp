#include "tests/support/run_fixture.h"

namespace orvane::test {
namespace {

class Skills : public RunFixture {
 protected:
  Skills() { user.pick(perso->SSTabPerso, frmPersonnage::Competences); }

  void select(const std::string& name) { user.row(perso->lvwSkillGen, name); }
  void step(int index, int times = 1) {
    for (int i = 0; i < times; ++i) user.click(perso->cmdSkillGenModif(index));
  }
  // Level and colour of the selected row, the two pools, and whether the martial tab is open.
  std::string state() const {
    const auto& row = *perso->lvwSkillGen.SelectedItem();
    return row.SubItems(1) + (row.ListSubItems(1).ForeColor() == Colour::Green ? " green" : " red") + ", " +
           perso->txtSkillRest.Text() + ", " + perso->txtMartialArtRest.Text() +
           (perso->SSTabPerso.TabEnabled(4) ? ", open" : ", closed");
  }

  frmPersonnage* perso = open();
};

TEST_F(Skills, ABoughtLevelIsGreenUntilItIsGivenBack) {
  select("Talent 01");
  step(1, 3);
  EXPECT_EQ(state(), "4 green, 65, 10, open");
  step(0);
  EXPECT_EQ(state(), "3 green, 66, 10, open");
  step(0);
  EXPECT_EQ(state(), "2 red, 67, 10, open");
}

TEST_F(Skills, ASpentMartialPointKeepsItsLevel) {
  user.pick(perso->SSTabPerso, frmPersonnage::EtatCivil);
  user.pick(perso->cmbProfil, "Civil");
  user.pick(perso->SSTabPerso, frmPersonnage::Competences);
  select("Arts martiaux");
  EXPECT_EQ(state(), "0 red, 77, 0, closed");
  step(1);
  user.pick(perso->SSTabPerso, frmPersonnage::ArtsMartiaux);
  user.click(perso->cmdMartialArtModif(1));
  user.pick(perso->SSTabPerso, frmPersonnage::Competences);
  step(0);
  EXPECT_EQ(state(), "1 green, 76, 0, open");
  EXPECT_EQ(perso->txtAllDescro.Text(), "!!! Plus de point restant en arts martiaux à retirer !!!");
}

TEST_F(Skills, OnlyFourNamesCanBeEditedUpToTwentyFiveCharacters) {
  user.edit(perso->lvwSkillGen, "Talent 01", "Autre nom");
  EXPECT_EQ(perso->lvwSkillGen.SelectedItem()->Text(), "Talent 01");
  user.edit(perso->lvwSkillGen, "Métier", "Élevage des écrevisses écl");
  EXPECT_EQ(perso->lvwSkillGen.SelectedItem()->Text(), "Élevage des écrevisses éc");
  user.edit(perso->lvwSkillGen, "Élevage des écrevisses éc", "");
  EXPECT_EQ(perso->lvwSkillGen.SelectedItem()->Text(), "");
  EXPECT_EQ(perso->txtAllDescro.Text(), "Métier, description.");
}

TEST_F(Skills, TheSheetLeavesOutTheMartialSkillAndUnboughtFreeOnes) {
  select("Loisir");
  step(1);
  std::string names;
  for (const auto& row : perso->lvwSkillGen.rows())
    if (perso->prcSkillNotOnSheet(*row)) names += row->Text() + ";";
  EXPECT_EQ(names, "Arts martiaux;Langage;Métier;Sciences;");
}

TEST_F(Skills, TheRowLastClickedIsRememberedAcrossTabs) {
  select("Écoute");
  user.pick(perso->SSTabPerso, frmPersonnage::Contacts);
  EXPECT_EQ(perso->txtAllDescro.Text(), "");
  user.pick(perso->SSTabPerso, frmPersonnage::Competences);
  EXPECT_EQ(perso->txtAllDescro.Text(), "Écoute, description.");
}

}  // namespace
}  // namespace orvane::test
