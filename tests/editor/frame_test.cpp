#include "tests/support/run_fixture.h"

namespace orvane::test {
namespace {

class Window : public RunFixture {
 protected:
  void name(frmPersonnage& window, const std::string& text) {
    user.type(window.txtPerso, text);
    user.focus(window.txtAge);
  }
};

TEST_F(Window, EachTabSaysWhatIsSelectedOnIt) {
  auto& perso = *open();
  const auto enter = [&](int tab) {
    user.pick(perso.SSTabPerso, tab);
    return perso.txtAllDescro.Text();
  };
  EXPECT_EQ(enter(frmPersonnage::Mutation), "Peau épaisse, description.");
  EXPECT_EQ(enter(frmPersonnage::ArtsMartiaux), "Boxe, description.");
  EXPECT_EQ(enter(frmPersonnage::Contacts), "");
  perso.cmbMutaName.setVisible(false);
  EXPECT_EQ(enter(frmPersonnage::Mutation), "");
  perso.cmbMutaName.setVisible(true);
  EXPECT_EQ(enter(frmPersonnage::Mutation), "Peau épaisse, description.") << "picked again, it is entered again";
  perso.cmbMutaCateg.setListIndex(-1);
  EXPECT_EQ(enter(frmPersonnage::Mutation), "") << "no power is selected";
}

TEST_F(Window, MayNotTakeTheNameOfAnother) {
  auto& first = *open();
  auto& second = *open();
  user.type(first.txtPerso, "Anne");
  EXPECT_EQ(first.Caption(), "") << "not before the name is left";
  for (int i = 0; i < 2; ++i) name(first, "Anne");
  EXPECT_EQ(first.Caption() + first.txtPerso.Text(), "Définition AnneAnne") << "its own name it may keep";
  name(second, "Anne");
  EXPECT_EQ(second.txtPerso.Text() + second.Caption(), "");
  name(second, "anne");
  EXPECT_EQ(second.Caption(), "Définition anne") << "case counts";
  name(first, "");
  name(second, "");
  EXPECT_EQ(first.Caption() + second.Caption(), "Définition Définition ") << "no name can be taken";
  name(first, "Anne");
  user.close(first);
  name(second, "Anne");
  EXPECT_EQ(second.Caption(), "Définition Anne") << "a closed window keeps no name";
}

TEST_F(Window, TheOneInUseIsTheOneActivatedLast) {
  auto* first = open();
  auto* second = open();
  auto* third = open();
  EXPECT_EQ(globals.frmCurrentPerso, third);
  user.click(first->cmdHelp);  // which opens nothing without the layers above
  user.click(first->cmdPrintPreview);
  EXPECT_EQ(globals.frmCurrentPerso, first);
  second->Unload();
  EXPECT_EQ(globals.frmCurrentPerso, first) << "one in the background changes nothing";
  user.click(first->cmdClose);
  EXPECT_EQ(globals.frmCurrentPerso, third);
  user.close(*third);
  EXPECT_EQ(globals.frmCurrentPerso, nullptr);
}

TEST_F(Window, ThatCannotBeLoadedLeavesTheOthersInUse) {
  auto* first = open();
  data.colProfil = {};
  EXPECT_EQ(open(), nullptr);
  EXPECT_EQ(dialogs.log.size(), 1U);
  EXPECT_EQ(globals.frmCurrentPerso, first);
  EXPECT_EQ(desktop.Forms().size(), 1U);
}

TEST_F(Window, OpensWithoutAnythingInItsLists) {
  data.colMartialArt = {};
  data.colSkill = {};
  data.colGrade = {};
  data.colDistrict = {};
  data.colMutation = {};
  auto* perso = open();
  ASSERT_NE(perso, nullptr);
  perso->SSTabPerso.setTabEnabled(frmPersonnage::ArtsMartiaux, true);
  for (int tab = 0; tab < 6; ++tab) user.pick(perso->SSTabPerso, tab);
  user.pick(perso->SSTabPerso, frmPersonnage::Competences);
  user.click(perso->cmdSkillGenModif(0));
  EXPECT_EQ(perso->txtAllDescro.Text(), "!!! Pas de compétence sélectionnée !!!");
  user.pick(perso->SSTabPerso, frmPersonnage::ArtsMartiaux);
  EXPECT_EQ(perso->txtMartialTechnicRest.Text() + perso->txtAllDescro.Text(), "");
  user.click(perso->cmdMartialArtModif(1));
  EXPECT_EQ(perso->txtAllDescro.Text(), "!!! Pas d'art martial sélectionné !!!");
  EXPECT_EQ(boxes(), "");
  perso->txtPerso.setText("Anne");
  EXPECT_TRUE(perso->prcValidate()) << "lists without rows are no fault";
}

}  // namespace
}  // namespace orvane::test
