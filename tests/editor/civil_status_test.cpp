#include "tests/support/run_fixture.h"

namespace orvane::test {
namespace {

class CivilStatus : public RunFixture {
 protected:
  // The three degrees, the pool, and the first line of the description.
  std::string state() const {
    std::string degrees;
    for (const auto& degree : perso->txtLang) degrees += degree.Text() + " ";
    return degrees + "reste " + perso->txtLangRest.Text() + ", " + told().substr(0, told().find("\r\n"));
  }
  const std::string& told() const { return perso->txtAllDescro.Text(); }

  frmPersonnage* perso = open();
};

TEST_F(CivilStatus, TypedDegreesAreTakenAsTheyStand) {
  user.type(perso->txtLang(0), "3 bien");
  user.type(perso->txtLangRest, "1");
  for (int i = 0; i < 2; ++i) user.click(perso->cmdLangModif(1));
  EXPECT_EQ(state(), "4 0 0 reste 0, Langue Degré 4 ");
  perso->txtAllDescro.setText("avant");
  user.click(perso->cmdLangModif(1));
  EXPECT_EQ(state(), "4 0 0 reste 0, Langue Degré 4 ") << "a refused step still shows the degree";
  perso->txtAllDescro.setText("avant");
  user.type(perso->txtLang(0), "6.5");
  user.click(perso->cmdLangModif(1));
  EXPECT_EQ(state(), "6.5 0 0 reste 0, avant") << "no such degree";
}

TEST_F(CivilStatus, TheDistrictIsPickedOrTyped) {
  const std::string elsewhere = "Le quartier d'origine du personnage n'est pas de Tessaly.";
  user.pick(perso->cmbDistrict, "Port");
  EXPECT_EQ(told(), "Les docks.");
  user.type(perso->cmbDistrict, "Port-Louis");
  EXPECT_EQ(told(), elsewhere);
  perso->cmbDistrict.setListIndex(0);
  perso->cmbDistrict.setListIndex(-1);
  EXPECT_EQ(told(), elsewhere);
}

TEST_F(CivilStatus, TheGradeExplainsItselfUnlessItIsCleared) {
  user.pick(perso->cmbGrade, "Officier");
  perso->cmbGrade.setListIndex(-1);
  EXPECT_EQ(told(), "Officier, description.");
}

}  // namespace
}  // namespace orvane::test
