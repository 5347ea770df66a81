#include "tests/support/run_fixture.h"

namespace orvane::test {
namespace {

class CivilStatus : public RunFixture {
 protected:
  void step(int times) {
    for (int i = 0; i < std::abs(times); ++i) user.click(perso->cmdLangModif(times < 0 ? 0 : 1));
  }
  // The three degrees and the pool.
  std::string degrees() const {
    std::string text;
    for (int i = 0; i < 3; ++i) text += perso->txtLang(i).Text() + " ";
    return text + "reste " + perso->txtLangRest.Text();
  }
  // The first line of the description.
  std::string head() const {
    const auto& text = perso->txtAllDescro.Text();
    return text.substr(0, text.find("\r\n"));
  }

  frmPersonnage* perso = open();
};

TEST_F(CivilStatus, DegreesStopAtFiveAndAtTheEndOfThePool) {
  step(6);
  EXPECT_EQ(degrees() + head(), "5 0 0 reste 4Langue Degré 5 ");
  user.click(perso->optLang(1));
  EXPECT_EQ(head(), "Langue Degré 0 ");
  step(5);
  EXPECT_EQ(degrees(), "5 4 0 reste 0");
  user.click(perso->optLang(2));
  step(1);
  EXPECT_EQ(degrees() + head(), "5 4 0 reste 0Langue Degré 0 ") << "a refused step still shows the degree";
  user.click(perso->optLang(0));
  step(-6);
  EXPECT_EQ(degrees(), "0 4 0 reste 5");
}

TEST_F(CivilStatus, TheDegreeIsExplainedBelowItsHead) {
  step(4);
  EXPECT_EQ(perso->txtAllDescro.Text(),
            "Langue Degré 4 \r\nLe personnage parle couramment la langue, connais plus de 80% du vocabulaire et "
            "communique sans accent.");
  perso->txtAllDescro.setText("avant");
  user.type(perso->txtLang(0), "6.5");
  step(1);
  EXPECT_EQ(perso->txtAllDescro.Text(), "avant") << "no such degree";
  EXPECT_EQ(degrees(), "6.5 0 0 reste 5");
}

TEST_F(CivilStatus, TypedDegreesAreTakenAsTheyStand) {
  user.type(perso->txtLang(0), "3 bien");
  user.type(perso->txtLangRest, "2");
  step(1);
  EXPECT_EQ(degrees(), "4 0 0 reste 1");
}

TEST_F(CivilStatus, NamingTheThirdLanguageSelectsIt) {
  user.type(perso->txtOtherLang, "Latin");
  EXPECT_TRUE(perso->optLang(2).Value());
  step(2);
  EXPECT_EQ(degrees(), "0 0 2 reste 7");
  user.pick(perso->SSTabPerso, frmPersonnage::Contacts);
  user.pick(perso->SSTabPerso, frmPersonnage::EtatCivil);
  EXPECT_EQ(head(), "Patrouilleur") << "the profile's text comes last";
  step(1);
  EXPECT_EQ(degrees(), "1 0 2 reste 6") << "coming back selects the first language";
}

TEST_F(CivilStatus, TheDistrictIsPickedOrTyped) {
  const std::string elsewhere = "Le quartier d'origine du personnage n'est pas de Tessaly.";
  user.pick(perso->cmbDistrict, "Port");
  EXPECT_EQ(perso->txtAllDescro.Text(), "Les docks.");
  user.type(perso->cmbDistrict, "Port-Louis");
  EXPECT_EQ(perso->txtAllDescro.Text(), elsewhere);
  EXPECT_EQ(perso->cmbDistrict.ListIndex(), -1);
  EXPECT_EQ(perso->cmbDistrict.Text(), "Port-Louis");
  perso->cmbDistrict.setListIndex(0);
  perso->cmbDistrict.setListIndex(-1);
  EXPECT_EQ(perso->txtAllDescro.Text(), elsewhere);
}

TEST_F(CivilStatus, TheGradeExplainsItselfUnlessItIsCleared) {
  user.pick(perso->cmbGrade, "Officier");
  EXPECT_EQ(perso->txtAllDescro.Text(), "Officier, description.");
  perso->txtAllDescro.setText("avant");
  perso->cmbGrade.setListIndex(-1);
  EXPECT_EQ(perso->txtAllDescro.Text(), "avant");
}

}  // namespace
}  // namespace orvane::test
