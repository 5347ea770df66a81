
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
  // Check box, draw button, category and power list, each as a letter where it can be used; then the pool and the tab.
  std::string state() const {
    std::string text = perso->chkMuta.Value() == 1 ? "checked " : "unchecked ";
    text += perso->chkMuta.Enabled() ? 'C' : '-';
    text += perso->cmdMutaRandomChoice.Enabled() ? 'R' : '-';
    text += perso->cmbMutaCateg.Enabled() ? 'K' : '-';
    text += perso->cmbMutaName.Enabled() && perso->cmbMutaName.Visible() ? 'N' : '-';
    text += perso->txtAllDescro.Enabled() ? 'D' : '-';
    return text + " " + perso->txtSkillRest.Text() + " tab " + std::to_string(perso->SSTabPerso.Tab());
  }

  frmPersonnage* perso = open();
};

TEST_F(Mutation, PowersOfTheCategoryAndSignStandInFileOrderWithPaddedNumbers) {
  EXPECT_EQ(powers(), "  7 Peau épaisse; 42 Bond;123 Griffes;");
  EXPECT_EQ(perso->cmbMutaName.ItemData(1), 4);
  EXPECT_EQ(state(), "checked CRKND 67 tab 5");
  user.pick(perso->cmbMutaCateg, "Bêta");
  EXPECT_EQ(powers(), "1234 Ondes;");
  EXPECT_EQ(perso->txtAllDescro.Text(), "Ondes, description.");
  user.pick(perso->cmbMutaCateg, "Psy");
  EXPECT_EQ(powers() + perso->txtAllDescro.Text(), "");
  EXPECT_EQ(perso->lblCatDescro.Caption(),
            "Les Psy sont des capacités liées aux rayonnements mentaux du cerveau humain.");
}

TEST_F(Mutation, GivingThePowerUpAndTakingItBackMovesTwentyPoints) {
  user.pick(perso->cmbMutaCateg, "Bêta");
  user.click(perso->chkMuta);
  EXPECT_EQ(boxes(), "64|Tessaly| 20 points de compétence ajoutés.\n");
  EXPECT_EQ(state(), "unchecked C---- 87 tab 3");
  EXPECT_EQ(perso->lblCatDescro.Caption(), " : catégorie de mutations inconnue.");
  EXPECT_EQ(powers(), "");
  user.pick(perso->SSTabPerso, frmPersonnage::Mutation);
  user.click(perso->chkMuta);
  EXPECT_EQ(boxes(), "64|Tessaly| 20 points de compétence retirés.\n");
  EXPECT_EQ(state(), "checked CRKND 67 tab 5");
  EXPECT_EQ(perso->cmbMutaCateg.Text(), "Alpha");
}

TEST_F(Mutation, TakingItBackNeedsTwentyPoints) {
  user.click(perso->chkMuta);
  perso->txtSkillRest.setText("19");
  user.pick(perso->SSTabPerso, frmPersonnage::Mutation);
  boxes();
  user.click(perso->chkMuta);
  EXPECT_EQ(state(), "unchecked C---- 19 tab 5");
  EXPECT_EQ(perso->txtAllDescro.Text(), "!!! Libérer d'abord 20 points de compétence !!!");
  EXPECT_EQ(boxes(), "");
  perso->txtSkillRest.setText("20");
  user.click(perso->chkMuta);
  EXPECT_EQ(state(), "checked CRKND 0 tab 5");
}

TEST_F(Mutation, ACancelledDrawChangesNothing) {
  dialogs.answers = {Answer::Cancel};
  user.click(perso->cmdMutaRandomChoice);
  EXPECT_EQ(boxes(), "33|Tessaly|Confirmation du choix aléatoire du pouvoir mutant dans la catégorie \r\nAlpha\n");
  EXPECT_EQ(state(), "checked CRKND 67 tab 5");
}

TEST_F(Mutation, ADrawnPowerIsKeptSecretAndForGood) {
  user.click(perso->cmdMutaRandomChoice);
  EXPECT_EQ(boxes(),
            "33|Tessaly|Confirmation du choix aléatoire du pouvoir mutant dans la catégorie \r\nAlpha\n"
            "64|Tessaly| La mutation tirée sera tenue secrète jusqu'à la validation du personnage.\r\n"
            "5 points de compétence ajoutés.\n");
  EXPECT_EQ(state(), "checked ----D 72 tab 3");
  user.pick(perso->SSTabPerso, frmPersonnage::Mutation);
  EXPECT_EQ(perso->txtAllDescro.Text(), "");
  EXPECT_TRUE(perso->txtAllDescro.Visible());
  EXPECT_THROW(user.click(perso->chkMuta), Refusal);

  user.pick(perso->SSTabPerso, frmPersonnage::EtatCivil);
  user.pick(perso->cmbProfil, "Civil");
  EXPECT_EQ(perso->txtSkillRest.Text(), "82");  // 85 - 3
}

// Whoever watches the controls meanwhile, as a screen does, never finds the drawn power's text while it shows.
TEST_F(Mutation, NoObserverSeesTheDescriptionOfTheDraw) {
  class Spy : public ControlObserver {
   public:
    void controlChanged(Control& control) override {
      if (auto* box = dynamic_cast<TextBox*>(&control); box && box->Visible()) seen += box->Text();
    }
    std::string seen;
  } spy;
  perso->txtAllDescro.watch(spy);
  for (float time = 100; time < 140; ++time) {
    clock.now = time;
    frmPersonnage* another = open();
    another->txtAllDescro.watch(spy);
    user.pick(another->SSTabPerso, frmPersonnage::Mutation);
    spy.seen.clear();
    user.click(another->cmdMutaRandomChoice);
    for (const char* power : {"Peau", "Bond", "Griffes"}) EXPECT_EQ(spy.seen.find(power), std::string::npos);
  }
}

TEST_F(Mutation, TheClockDecidesTheDrawAndEveryPowerCanCome) {
  std::map<std::string, int> drawn;
  const auto draw = [this](float time) {
    clock.now = time;
    frmPersonnage* another = open();
    user.pick(another->SSTabPerso, frmPersonnage::Mutation);
    user.click(another->cmdMutaRandomChoice);
    return another->cmbMutaName.Text();
  };
  for (float time = 0; time < 300; ++time) ++drawn[draw(time)];
  ASSERT_EQ(drawn.size(), 3U);
  for (const auto& [power, times] : drawn) EXPECT_GT(times, 60) << power;
  EXPECT_EQ(draw(12345.5F), draw(12345.5F));
}

TEST_F(Mutation, WithoutAPowerThereIsNoDraw) {
  user.pick(perso->cmbMutaCateg, "Psy");
  user.click(perso->cmdMutaRandomChoice);
  EXPECT_EQ(boxes(), "");
  EXPECT_EQ(perso->txtAllDescro.Text(), "!!! Aucun pouvoir dans cette catégorie !!!");
  EXPECT_EQ(state(), "checked CRKND 67 tab 5");
}

}  // namespace
}  // namespace orvane::test
