#include <map>
#include <tuple>

#include "tests/support/run_fixture.h"

namespace orvane::test {
namespace {

const std::string invalid =
    "48|Tessaly|Attention, le personnage n'est pas valide.\r\nLes contraintes essentielles non valides sont indiquées "
    "en rouge.\r\n(vérifez aussi les compétences)\n";
const std::string incomplete =
    "64|Tessaly|Attention, le personnage est valide mais incomplet.\r\nLes contraintes accessoires non valides sont "
    "indiquées en jaune.\n";

class Validation : public RunFixture {
 protected:
  Validation() {
    user.pick(perso->cmbProfil, "Civil");
    complete();
  }

  // Nothing is left to do and nothing is wrong; the tab of the martial arts is closed.
  void complete() {
    perso->txtJoueur.setText("Joueur");
    perso->txtPerso.setText("Anne");
    perso->txtAge.setText("30");
    perso->txtOtherLang.setText("Latin");
    perso->txtLang(2).setText("1");
    perso->cmbDistrict.setListIndex(0);
    for (auto* pool : {&perso->txtLangRest, &perso->txtCaractRest, &perso->txtContactRest, &perso->txtSkillRest})
      pool->setText("0");
  }

  // Every field that is red or yellow.
  std::string marked() const {
    std::string text;
    for (const auto* control : perso->controls()) {
      const auto colour = control->property("BackColor");
      if (colour == Value(Colour::EssentialBroken)) text += control->Name() + " rouge; ";
      if (colour == Value(Colour::AccessoryBroken)) text += control->Name() + " jaune; ";
    }
    for (const auto& row : perso->lvwSkillGen.rows())
      if (row->ForeColor() == Colour::Red) text += row->Text() + " rouge; ";
    return text;
  }
  ListItem& skill(const std::string& key) const {
    for (const auto& row : perso->lvwSkillGen.rows())
      if (row->SubItems(2) == key) return *row;
    throw Failure("Pas de compétence " + key + ".");
  }
  ListItem& artRow(int position) const { return *perso->lvwMartialArt.ListItems(position); }

  frmPersonnage* perso = open();
};

TEST_F(Validation, AllTestsRunAndTheEssentialBoxWins) {
  for (auto* box : {&perso->txtJoueur, &perso->txtPerso, &perso->txtAge}) box->setText("");
  perso->cmbDistrict.setListIndex(-1);
  EXPECT_FALSE(perso->prcValidate());
  EXPECT_EQ(marked(), "txtJoueur jaune; txtPerso rouge; txtAge jaune; cmbDistrict jaune; ");
  EXPECT_EQ(boxes(), invalid);
  complete();
  perso->txtLang(2).setText("0");
  perso->txtOtherLang.setText("Autre");
  user.type(perso->cmbDistrict, "Ailleurs");
  EXPECT_TRUE(perso->prcValidate());
  EXPECT_EQ(boxes() + marked(), "");
  EXPECT_EQ(perso->txtSkillRest.BackColor(), Colour::ButtonFace);
  EXPECT_EQ(perso->txtPerso.BackColor(), Colour::WindowBackground);
}

TEST_F(Validation, OneFaultMarksItsFieldAndDecidesTheOutcome) {
  const std::tuple<TextBox&, const char*, std::string> faults[]{
      {perso->txtJoueur, "", "txtJoueur jaune; "},
      {perso->txtPerso, "", "txtPerso rouge; "},
      {perso->txtPerso, " ", ""},
      {perso->txtAge, "24", "txtAge jaune; "},
      {perso->txtAge, "25 ans", ""},
      {perso->txtAge, "40", ""},
      {perso->txtAge, "40.5", "txtAge jaune; "},
      {perso->txtLangRest, "1", "txtLangRest jaune; "},
      {perso->txtCaractRest, "1", "txtCaractRest jaune; "},
      {perso->txtContactRest, "0.5", "txtContactRest jaune; "},
      {perso->txtSkillRest, "-1", ""},
      {perso->txtSkillRest, "3", "txtSkillRest jaune; "},
      {perso->txtOtherLang, "Autre", "txtOtherLang rouge; "},
      {perso->txtOtherLang, "", "txtOtherLang rouge; "},
      {perso->txtOtherLang, "autre", ""},
      {perso->txtMartialArtRest, "9", ""},  // its tab is closed
  };
  for (const auto& [box, text, mark] : faults) {
    complete();
    box.setText(text);
    const bool essential = mark.find("rouge") != std::string::npos;
    EXPECT_EQ(perso->prcValidate(), !essential) << mark;
    EXPECT_EQ(marked(), mark);
    EXPECT_EQ(boxes(), essential ? invalid : mark.empty() ? "" : incomplete) << mark;
  }
}

TEST_F(Validation, AnAgeOutOfRangeIsRepairedForTheNextTime) {
  for (const auto& [typed, repaired] : std::map<std::string, std::string>{{"70", "40"}, {"", "25"}, {"vieux", "25"}}) {
    perso->txtAge.setText(typed);
    for (const char* mark : {"txtAge jaune; ", ""}) {
      EXPECT_TRUE(perso->prcValidate());
      EXPECT_EQ(marked() + perso->txtAge.Text(), mark + repaired);
    }
  }
}

TEST_F(Validation, ABoughtSkillNeedsANameOfItsOwn) {
  for (const char* key : {"56", "57", "59", "60", "55"}) skill(key).setSubItems(1, "1");
  EXPECT_FALSE(perso->prcValidate());
  EXPECT_EQ(marked(), "Langage rouge; Loisir rouge; Métier rouge; Sciences rouge; ");
  EXPECT_EQ(boxes(), invalid);
  for (const char* key : {"56", "57", "59"}) skill(key).setText("Latin");
  skill("60").setText("loisir");
  EXPECT_TRUE(perso->prcValidate());
  EXPECT_EQ(marked() + boxes(), "");
}

TEST_F(Validation, MartialPointsCountWhileTheirTabIsOpen) {
  perso->SSTabPerso.setTabEnabled(frmPersonnage::ArtsMartiaux, true);
  perso->txtMartialArtRest.setText("2");
  EXPECT_TRUE(perso->prcValidate());
  EXPECT_EQ(marked(), "txtMartialArtRest jaune; ");
  EXPECT_EQ(boxes(), incomplete);
  EXPECT_EQ(perso->lvwMartialArt.SelectedItem()->Index(), perso->lvwMartialArt.Count()) << "all rows were walked";
  EXPECT_EQ(perso->txtAllDescro.Text(), "Vide, description.");

  perso->SSTabPerso.setTabEnabled(frmPersonnage::ArtsMartiaux, false);
  artRow(1).select();
  perso->txtMartialArtRest.setText("0");
  EXPECT_TRUE(perso->prcValidate());
  EXPECT_EQ(marked(), "txtMartialArtRest jaune; ") << "the colour of the earlier check stays";
  EXPECT_EQ(perso->lvwMartialArt.SelectedItem()->Index(), 1);
  EXPECT_EQ(boxes(), "");
}

TEST_F(Validation, TheFirstRowWithATechniqueLeftEndsTheWalk) {
  perso->SSTabPerso.setTabEnabled(frmPersonnage::ArtsMartiaux, true);
  artRow(1).setSubItems(2, "1");  // Boxe, offensive: three techniques, one of them taken
  perso->colPersoArt(1)->colMartialTechnic(1)->bSelected = true;
  artRow(3).setSubItems(2, "1");  // Lutte, offensive
  artRow(5).setSubItems(2, "4");  // Vide: points without techniques leave nothing to choose
  EXPECT_TRUE(perso->prcValidate());
  EXPECT_EQ(marked(), "txtMartialTechnicRest jaune; ");
  EXPECT_EQ(perso->lvwMartialArt.SelectedItem()->Index(), 3);
  perso->colPersoArt(2)->colMartialTechnic(1)->bSelected = true;
  boxes();
  EXPECT_TRUE(perso->prcValidate());
  EXPECT_EQ(marked() + boxes(), "");
}

}  // namespace
}  // namespace orvane::test
