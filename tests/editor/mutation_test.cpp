
#include <map>

#include "tests/support/run_fixture.h"

namespace orvane::test {
namespace {

class Mutation : public RunFixture {
 protected:
  Mutation() { user.pick(perso->SSTabPerso, frmPersonnage::Mutation); }

  std::string powers() const {
    std::string names;
    for (int i = 0; i < perso->cmbMutaName.ListCount(); ++i) names += perso->cmbMutaName.List(i) + ";";
    return names;
  }
  const std::string& told() const { return perso->txtAllDescro.Text(); }

  frmPersonnage* perso = open();
};

TEST_F(Mutation, PowersOfTheCategoryAndSignStandInFileOrderWithPaddedNumbers) {
  EXPECT_EQ(powers(), "  7 Peau épaisse; 42 Bond;123 Griffes;");
  user.pick(perso->cmbMutaCateg, "Bêta");
  EXPECT_EQ(powers() + told(), "1234 Ondes;Ondes, description.");
  user.pick(perso->cmbMutaCateg, "Psy");
  EXPECT_EQ(powers() + told(), "");
  user.click(perso->cmdMutaRandomChoice);
  EXPECT_EQ(boxes() + told(), "!!! Aucun pouvoir dans cette catégorie !!!");
}

TEST_F(Mutation, TakingThePowerBackNeedsTwentyPoints) {
  const auto takeBackWith = [this](const char* points) {
    user.pick(perso->SSTabPerso, frmPersonnage::Mutation);
    perso->txtSkillRest.setText(points);
    boxes();
    user.click(perso->chkMuta);
    return std::to_string(perso->chkMuta.Value()) + " " + perso->txtSkillRest.Text() + " " + boxes();
  };
  user.click(perso->chkMuta);
  EXPECT_EQ(powers() + perso->lblCatDescro.Caption(), " : catégorie de mutations inconnue.");
  EXPECT_EQ(takeBackWith("19"), "0 19 ");
  EXPECT_EQ(told(), "!!! Libérer d'abord 20 points de compétence !!!");
  EXPECT_EQ(takeBackWith("20"), "1 0 64|Tessaly| 20 points de compétence retirés.\n");
}

TEST_F(Mutation, TheClockDecidesTheDrawEveryPowerCanComeAndNobodySeesIt) {
  // Watches the box as a screen does.
  struct Spy : ControlObserver {
    void controlChanged(Control& control) override {
      if (auto& box = static_cast<TextBox&>(control); box.Visible()) seen += box.Text();
    }
    std::string seen;
  } spy;
  const auto draw = [&](float time) {
    clock.now = time;
    frmPersonnage* another = open();
    another->txtAllDescro.watch(spy);
    user.pick(another->SSTabPerso, frmPersonnage::Mutation);
    spy.seen.clear();
    user.click(another->cmdMutaRandomChoice);
    return another->cmbMutaName.Text();
  };
  std::map<std::string, int> drawn;
  for (float time = 0; time < 300; ++time) {
    ++drawn[draw(time)];
    for (const char* power : {"Peau", "Bond", "Griffes"}) EXPECT_EQ(spy.seen.find(power), std::string::npos);
  }
  ASSERT_EQ(drawn.size(), 3U);
  for (const auto& [power, times] : drawn) EXPECT_GT(times, 60) << power;
  EXPECT_EQ(draw(12345.5F), draw(12345.5F));
}

}  // namespace
}  // namespace orvane::test
