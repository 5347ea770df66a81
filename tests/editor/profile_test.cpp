#include "tests/support/run_fixture.h"

namespace orvane::test {
namespace {

// A row as "NAME level/key/level at application", with "*" for a bold one.
std::string shown(const ListItem& row) {
  return (row.Bold() ? "*" : "") + row.Text() + " " + row.SubItems(1) + "/" + row.SubItems(2) + "/" + row.SubItems(3);
}

std::string boldRows(const frmPersonnage& perso) {
  std::string lines;
  for (const auto& row : perso.lvwSkillGen.rows())
    if (row->Bold()) lines += shown(*row) + "\n";
  return lines;
}

class Profile : public RunFixture {
 protected:
  void pick(const std::string& profile) { user.pick(perso->cmbProfil, profile); }

  frmPersonnage* perso = open();
};

TEST_F(Profile, TheFirstOneIsAppliedWhenTheWindowOpens) {
  EXPECT_EQ(boldRows(*perso), "*Arts martiaux 10/58/10\n*Talent 11 1/11/1\n*Talent 20 1/20/1\n*Voiture 1/18/1\n");
  EXPECT_EQ(perso->txtSkillRest.Text(), "67");  // 80 - 1 - 1 - 1 - (1 + 9)
  EXPECT_EQ(perso->txtMartialArtRest.Text(), "10");
  EXPECT_EQ(perso->lvwSkillGen.Count(), 60);
  EXPECT_EQ(perso->lvwSkillGen.SelectedItem()->Text(), "Arts martiaux");
  EXPECT_EQ(perso->cmbVehicle.Text(), "Voiture");
  EXPECT_EQ(perso->cmbGrade.Text(), "Agent");
  EXPECT_EQ(perso->txtSkillPro.Caption(), "Patrouilleur");
  EXPECT_EQ(perso->SSTabPerso.property("TabEnabled"), Value(std::string("0,1,2,3,4,5")));
  EXPECT_EQ(boxes(), "");
}

TEST_F(Profile, RowsStandInFrenchOrder) {
  const auto& rows = perso->lvwSkillGen.rows();
  std::vector<std::string> names;
  for (const auto& row : rows) names.push_back(row->Text());
  EXPECT_EQ(names[0], "Arts martiaux");
  EXPECT_EQ(names[1], "Écoute");
  EXPECT_EQ(names[2], "Hélico");
  EXPECT_EQ(names.back(), "Zoologie");
}

TEST_F(Profile, ACivilProfileClosesWhatThePoliceHas) {
  pick("Civil");
  EXPECT_EQ(boldRows(*perso), "*Écoute 1/12/1\n*Talent 10 1/10/1\n");
  EXPECT_EQ(perso->txtSkillRest.Text(), "77");
  EXPECT_EQ(perso->txtMartialArtRest.Text(), "0");
  EXPECT_EQ(perso->SSTabPerso.property("TabEnabled"), Value(std::string("0,1,2,3,5")));
  EXPECT_EQ(perso->cmbGrade.ListIndex(), -1);
  EXPECT_FALSE(perso->cmbGrade.Enabled() || perso->lblGrade.Enabled());
  EXPECT_EQ(perso->cmbVehicle.ListIndex(), -1);
  EXPECT_FALSE(perso->cmbVehicle.Enabled() || perso->lblVehicle.Enabled());
  EXPECT_EQ(perso->txtAllDescro.Text(), "Civil\r\nCivil, description.");
}

TEST_F(Profile, AnotherVehicleStartsOverWithItsSkill) {
  user.pick(perso->SSTabPerso, 3);
  user.row(perso->lvwSkillGen, "Talent 11");
  user.click(perso->cmdSkillGenModif(1));
  EXPECT_EQ(perso->txtSkillRest.Text(), "66");
  user.pick(perso->SSTabPerso, 0);
  user.pick(perso->cmbVehicle, "Hélicoptère");
  EXPECT_EQ(boldRows(*perso), "*Arts martiaux 10/58/10\n*Hélico 1/44/1\n*Talent 11 1/11/1\n*Talent 20 1/20/1\n");
  EXPECT_EQ(perso->txtSkillRest.Text(), "67");
  EXPECT_EQ(perso->cmbVehicle.Text(), "Hélicoptère");
}

TEST_F(Profile, TheRecordsOfTheGameStayClean) {
  for (const char* name : {"Civil", "Patrouilleur", "Civil", "Patrouilleur"}) pick(name);
  const auto& keys = data.colProfil(2)->colSkillPro;
  EXPECT_EQ(std::vector<double>(keys.begin(), keys.end()), (std::vector<double>{11, 101, 58}));
}

TEST_F(Profile, ARedundantSkillIsToldForEachRepeatAndPaidOnce) {
  pick("Redondant");
  EXPECT_EQ(boxes(),
            "48|Tessaly|Compétence Talent 11 redondante.\n"
            "48|Tessaly|Compétence Talent 20 redondante.\n"
            // Clearing the vehicle applies the profile once more.
            "48|Tessaly|Compétence Talent 11 redondante.\n"
            "48|Tessaly|Compétence Talent 20 redondante.\n");
  EXPECT_EQ(perso->txtSkillRest.Text(), "78");
  pick("Redondant");
  EXPECT_EQ(boxes(),
            "48|Tessaly|Compétence Talent 11 redondante.\n"
            "48|Tessaly|Compétence Talent 20 redondante.\n");
}

TEST_F(Profile, TwoVehicleCodesCloseTheWindow) {
  frmPersonnage* other = open();
  user.pick(other->cmbProfil, "Deux codes");
  EXPECT_EQ(boxes(), "16|Tessaly|Code 101 plusieurs fois dans le profil !\n");
  ASSERT_EQ(desktop.Forms().size(), 1U);
  EXPECT_EQ(desktop.activeChild(), perso);
  EXPECT_EQ(globals.frmCurrentPerso, perso);
  user.click(perso->cmdLangModif(1));
  EXPECT_EQ(perso->txtLangRest.Text(), "8");
}

TEST_F(Profile, TwoVehicleCodesInTheFirstProfileLetNoWindowOpen) {
  Collection<std::shared_ptr<const clsProfil>> faultyFirst;
  faultyFirst.Add(data.colProfil(4));
  for (const auto& profile : data.colProfil) faultyFirst.Add(profile);
  data.colProfil = faultyFirst;
  data.iProfilAsserm = 2;
  EXPECT_EQ(open(), nullptr);
  EXPECT_EQ(boxes(), "16|Tessaly|Code 101 plusieurs fois dans le profil !\n");
  EXPECT_EQ(desktop.Forms().size(), 1U);
  EXPECT_EQ(globals.frmCurrentPerso, perso);
  user.pick(perso->SSTabPerso, 4);
  user.click(perso->cmdMartialArtModif(1));
  EXPECT_EQ(perso->txtMartialArtRest.Text(), "9");
}

TEST_F(Profile, TooSmallAPoolStopsWhereItStands) {
  pick("Ruineux");
  EXPECT_EQ(boxes(), "16|Tessaly|Pas assez de points de compétences pour toutes les compétences du profil!\n");
  EXPECT_EQ(perso->lvwSkillGen.Count(), 13);
  EXPECT_EQ(perso->lvwSkillGen.ListItems(1)->Text(), "Talent 01");  // unsorted
  EXPECT_EQ(perso->txtSkillRest.Text(), "79");
  EXPECT_EQ(perso->txtMartialArtRest.Text(), "0");
  EXPECT_EQ(perso->txtSkillPro.Caption(), "Patrouilleur");
  EXPECT_EQ(perso->SSTabPerso.property("TabEnabled"), Value(std::string("0,1,2,3,5")));

  user.pick(perso->SSTabPerso, 3);
  const std::string before = perso->txtAllDescro.Text();
  user.click(perso->cmdSkillGenModif(1));
  EXPECT_EQ(perso->txtAllDescro.Text(), "!!! Pas de compétence sélectionnée !!!");
  EXPECT_NE(before, perso->txtAllDescro.Text());

  user.pick(perso->SSTabPerso, 0);
  pick("Patrouilleur");
  EXPECT_EQ(perso->txtSkillRest.Text(), "67");
}

TEST_F(Profile, TheMartialSkillStopsAfterItsFirstLevelWhenTheRestCannotBePaid) {
  pick("Arts ruineux");  // 80 - 73 - 1 = 6 points for the 9 that its level 10 takes
  EXPECT_EQ(boxes(), "16|Tessaly|Pas assez de points de compétences pour toutes les compétences du profil!\n");
  EXPECT_EQ(perso->txtSkillRest.Text(), "6");
  EXPECT_EQ(perso->txtMartialArtRest.Text(), "10");
  EXPECT_TRUE(perso->SSTabPerso.TabEnabled(4));
  EXPECT_EQ(shown(*perso->lvwSkillGen.rows().back()), "*Arts martiaux 1/58/1");
}

TEST_F(Profile, WithoutAnySkillTheWindowOpensAndTheArrowsAnswer) {
  data.colSkill = {};
  frmPersonnage* empty = open();
  ASSERT_NE(empty, nullptr);
  EXPECT_EQ(boxes(), "");
  user.pick(empty->SSTabPerso, 3);
  user.click(empty->cmdSkillGenModif(0));
  EXPECT_EQ(empty->txtAllDescro.Text(), "!!! Pas de compétence sélectionnée !!!");
}

}  // namespace
}  // namespace orvane::test
