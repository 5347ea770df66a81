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

TEST_F(Profile, PaysForItsSkillsAndOpensWhatItNeeds) {
  EXPECT_EQ(boldRows(*perso), "*Arts martiaux 10/58/10\n*Talent 11 1/11/1\n*Talent 20 1/20/1\n*Voiture 1/18/1\n");
  EXPECT_EQ(perso->txtSkillRest.Text(), "67");  // 80 - 1 - 1 - 1 - (1 + 9)
  pick("Civil");
  EXPECT_EQ(boldRows(*perso), "*Écoute 1/12/1\n*Talent 10 1/10/1\n");
  EXPECT_EQ(perso->txtSkillRest.Text(), "77");
  EXPECT_FALSE(perso->cmbGrade.Enabled() || perso->lblGrade.Enabled());
  EXPECT_FALSE(perso->cmbVehicle.Enabled() || perso->lblVehicle.Enabled());
}

TEST_F(Profile, TheRecordsOfTheGameStayClean) {
  for (const char* name : {"Civil", "Patrouilleur", "Civil", "Patrouilleur"}) pick(name);
  const auto& keys = data.colProfil(2)->colSkillPro;
  EXPECT_EQ(std::vector<double>(keys.begin(), keys.end()), (std::vector<double>{11, 101, 58}));
}

TEST_F(Profile, TwoVehicleCodesInTheFirstProfileLetNoWindowOpen) {
  for (int i = 0; i < 2; ++i) data.colProfil.Remove(2);
  EXPECT_EQ(open(), nullptr);
  EXPECT_EQ(boxes(), "16|Tessaly|Code 101 plusieurs fois dans le profil !\n");
  ASSERT_EQ(desktop.Forms().size(), 1U);
  EXPECT_EQ(globals.frmCurrentPerso, perso);
  user.pick(perso->SSTabPerso, frmPersonnage::ArtsMartiaux);
  user.click(perso->cmdMartialArtModif(1));
  EXPECT_EQ(perso->txtMartialArtRest.Text(), "9") << "the other window goes on";
}

TEST_F(Profile, TheMartialSkillStopsAfterItsFirstLevelWhenTheRestCannotBePaid) {
  pick("Arts ruineux");  // 80 - 73 - 1 = 6 points for the 9 that its level 10 takes
  EXPECT_EQ(boxes(), "16|Tessaly|Pas assez de points de compétences pour toutes les compétences du profil!\n");
  EXPECT_EQ(perso->txtSkillRest.Text() + " " + perso->txtMartialArtRest.Text(), "6 10");
  EXPECT_TRUE(perso->SSTabPerso.TabEnabled(frmPersonnage::ArtsMartiaux));
  EXPECT_EQ(shown(*perso->lvwSkillGen.rows().back()), "*Arts martiaux 1/58/1");
}

}  // namespace
}  // namespace orvane::test
