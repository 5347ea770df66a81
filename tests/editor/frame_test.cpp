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

TEST_F(Window, ShowsTwoRowsForEachMartialArt) {
  std::string rows;
  for (const auto& row : open()->lvwMartialArt.rows())
    rows += row->Text() + "," + row->SubItems(1) + "," + row->SubItems(2) + "," + row->SubItems(3) + ";";
  EXPECT_EQ(rows, "Boxe,Offensif,0,1;,Défensif,0,1;Lutte,Offensif,0,2;,Défensif,0,2;Vide,Offensif,0,3;,Défensif,0,3;");
}

TEST_F(Window, FollowsTheFirstProfileWhenItOpens) {
  data.colProfil.Remove(2);
  const auto& perso = *open();
  EXPECT_EQ(perso.cmbProfil.Text(), "Civil");
  EXPECT_EQ(shownValue(*perso.SSTabPerso.property("TabEnabled")), "\"0,1,2,3,5\"");
}

TEST_F(Window, EachTabSaysWhatIsSelectedOnIt) {
  auto& perso = *open();
  const auto enter = [&](int tab) {
    user.pick(perso.SSTabPerso, tab);
    return perso.txtAllDescro.Text();
  };
  enter(frmPersonnage::Caracteristiques);
  user.click(perso.optCaract(5));
  EXPECT_EQ(enter(frmPersonnage::Contacts), "");
  EXPECT_EQ(enter(frmPersonnage::Caracteristiques), perso.optCaract(5).Tag());
  EXPECT_EQ(enter(frmPersonnage::ArtsMartiaux), "Boxe, description.");
  EXPECT_EQ(enter(frmPersonnage::Mutation), "Peau épaisse, description.");
  perso.cmbMutaName.setVisible(false);
  EXPECT_EQ(enter(frmPersonnage::Mutation), "") << "picking the tab again enters it again";
  perso.cmbMutaName.setVisible(true);
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
  user.click(first->cmdHelp);
  EXPECT_EQ(globals.frmCurrentPerso, first);
  second->Unload();
  EXPECT_EQ(globals.frmCurrentPerso, first) << "one in the background changes nothing";
  user.click(first->cmdClose);
  EXPECT_EQ(globals.frmCurrentPerso, third);
  user.close(*third);
  EXPECT_EQ(globals.frmCurrentPerso, nullptr);
}

TEST_F(Window, WithoutTheLayersAboveOpensNeitherSheetNorHelp) {
  auto& perso = *open();
  user.click(perso.cmdHelp);
  user.click(perso.cmdPrintPreview);
  EXPECT_EQ(boxes(), "");
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
}

}  // namespace
}  // namespace orvane::test
