#include <map>

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
  perso->txtSkillRest.setText("2");
  EXPECT_FALSE(perso->prcValidate());
  EXPECT_EQ(marked(), "txtJoueur jaune; txtPerso rouge; txtAge jaune; txtSkillRest jaune; ");
  EXPECT_EQ(boxes(), invalid);
  complete();
  EXPECT_TRUE(perso->prcValidate());
  EXPECT_EQ(boxes() + marked(), "");
  EXPECT_EQ(perso->txtSkillRest.BackColor(), Colour::ButtonFace);
  EXPECT_EQ(perso->txtPerso.BackColor(), Colour::WindowBackground);
}

TEST_F(Validation, OneFaultMarksItsFieldAndDecidesTheOutcome) {
  struct Fault {
    std::function<void()> spoil;
    std::string mark;
  };
  const auto write = [](TextBox& box, const char* text) { return [&box, text] { box.setText(text); }; };
  const auto language = [&](const char* degree, const char* name) {
    return [this, degree, name] {
      perso->txtLang(2).setText(degree);
      perso->txtOtherLang.setText(name);
    };
  };
  const std::vector<Fault> faults{
      {write(perso->txtJoueur, ""), "txtJoueur jaune; "},
      {write(perso->txtPerso, ""), "txtPerso rouge; "},
      {write(perso->txtPerso, " "), ""},
      {write(perso->txtAge, "24"), "txtAge jaune; "},
      {write(perso->txtAge, "25 ans"), ""},
      {write(perso->txtAge, "40"), ""},
      {write(perso->txtAge, "40.5"), "txtAge jaune; "},
      {[this] { perso->cmbDistrict.setListIndex(-1); }, "cmbDistrict jaune; "},
      {[this] { user.type(perso->cmbDistrict, "Ailleurs"); }, ""},
      {write(perso->txtLangRest, "1"), "txtLangRest jaune; "},
      {write(perso->txtCaractRest, "1"), "txtCaractRest jaune; "},
      {write(perso->txtContactRest, "0.5"), "txtContactRest jaune; "},
      {write(perso->txtSkillRest, "-1"), ""},
      {write(perso->txtSkillRest, "3"), "txtSkillRest jaune; "},
      {language("1", "Autre"), "txtOtherLang rouge; "},
      {language("1", ""), "txtOtherLang rouge; "},
      {language("1", "autre"), ""},
      {language("0", "Autre"), ""},
      {write(perso->txtMartialArtRest, "9"), ""},  // its tab is closed
  };
  for (const auto& fault : faults) {
    complete();
    fault.spoil();
    const bool essential = fault.mark.find("rouge") != std::string::npos;
    EXPECT_EQ(perso->prcValidate(), !essential) << fault.mark;
    EXPECT_EQ(marked(), fault.mark);
    EXPECT_EQ(boxes(), essential ? invalid : fault.mark.empty() ? "" : incomplete) << fault.mark;
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
  const auto levels = [this](const char* level) {
    for (const char* key : {"56", "57", "59", "60", "55"}) skill(key).setSubItems(1, level);
  };
  levels("0");
  EXPECT_TRUE(perso->prcValidate());
  levels("1");
  EXPECT_FALSE(perso->prcValidate());
  EXPECT_EQ(marked(), "Langage rouge; Loisir rouge; Métier rouge; Sciences rouge; ");
  EXPECT_EQ(boxes(), invalid);
  for (const char* key : {"56", "57", "59"}) skill(key).setText("Latin");
  skill("60").setText("loisir");
  EXPECT_EQ(skill("56").ForeColor(), Colour::Red) << "until the next check";
  EXPECT_TRUE(perso->prcValidate());
  EXPECT_EQ(skill("56").ForeColor(), Colour::WindowText);
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

TEST_F(Validation, ListsWithoutRowsAreNoFault) {
  perso->SSTabPerso.setTabEnabled(frmPersonnage::ArtsMartiaux, true);
  perso->lvwSkillGen.Clear();
  perso->lvwMartialArt.Clear();
  EXPECT_TRUE(perso->prcValidate());
  EXPECT_EQ(marked() + boxes(), "");
}

}  // namespace
}  // namespace orvane::test
