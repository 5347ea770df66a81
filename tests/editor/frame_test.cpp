#include "tests/support/refusal.h"
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

TEST_F(Window, StartsOnTheFirstTabWithItsListsAndPools) {
  const auto& perso = *open();
  EXPECT_EQ(boxes() + perso.Caption(), "");
  EXPECT_EQ(perso.txtAllDescro.Text(), "Patrouilleur\r\nPatrouilleur, description.");
  EXPECT_EQ(perso.SSTabPerso.Tab(), frmPersonnage::EtatCivil);
  EXPECT_EQ(shownValue(*perso.SSTabPerso.property("TabEnabled")), "\"0,1,2,3,4,5\"");
  EXPECT_TRUE(perso.optLang(0).Value());

  std::string profiles;
  for (int i = 0; i < perso.cmbProfil.ListCount(); ++i)
    profiles += std::to_string(perso.cmbProfil.ItemData(i)) + perso.cmbProfil.List(i) + " ";
  EXPECT_EQ(profiles, "2Patrouilleur 3Civil 4Deux codes 5Redondant 6Ruineux 7Arts ruineux ");
  EXPECT_EQ(perso.cmbGrade.ListCount(), 2) << "further grades are not offered";
  EXPECT_EQ(perso.cmbEthnie.Text() + perso.cmbSexe.Text() + perso.cmbDistrict.Text(), "NordiqueH");
  EXPECT_EQ(perso.cmbDistrict.ItemData(0), 1);

  std::string pools;
  for (const auto* pool : {&perso.txtLangRest, &perso.txtCaractRest, &perso.txtContactRest, &perso.txtMartialArtRest,
                           &perso.txtMartialTechnicRest})
    pools += pool->Text() + ";";
  EXPECT_EQ(pools, "9;10;14;10;;");
  EXPECT_EQ(perso.txtOtherLang.Text() + perso.txtLang(2).Text() + perso.txtCaract(7).Text(), "Autre00");
}

TEST_F(Window, ShowsTwoRowsForEachMartialArt) {
  const auto& perso = *open();
  std::string rows;
  for (const auto& row : perso.lvwMartialArt.rows())
    rows += row->Text() + "," + row->SubItems(1) + "," + row->SubItems(2) + "," + row->SubItems(3) + ";";
  EXPECT_EQ(rows, "Boxe,Offensif,0,1;,Défensif,0,1;Lutte,Offensif,0,2;,Défensif,0,2;Vide,Offensif,0,3;,Défensif,0,3;");
  EXPECT_EQ(perso.lvwMartialArt.ColumnHeaders().back().width, 0);
  EXPECT_EQ(perso.lvwSkillGen.ColumnHeaders()[0].width, perso.lvwSkillGen.Width() - 1200);
}

TEST_F(Window, OffersTheOnlyGradeThereIs) {
  while (data.colGrade.Count() > 1) data.colGrade.Remove(2);
  EXPECT_EQ(open()->cmbGrade.ListCount(), 1);
}

TEST_F(Window, FollowsTheFirstProfileWhenItOpens) {
  data.colProfil.Remove(2);
  const auto& perso = *open();
  EXPECT_EQ(perso.cmbProfil.Text(), "Civil");
  EXPECT_FALSE(perso.SSTabPerso.TabEnabled(frmPersonnage::ArtsMartiaux));
  EXPECT_NE(refusal([&] { user.pick(open()->SSTabPerso, frmPersonnage::ArtsMartiaux); }), "");
  EXPECT_EQ(refusal([&] { user.pick(open()->SSTabPerso, frmPersonnage::Mutation); }), "");
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
  EXPECT_TRUE(perso.optContact(0).Value());
  EXPECT_EQ(enter(frmPersonnage::Caracteristiques), perso.optCaract(5).Tag());
  EXPECT_FALSE(perso.optContact(0).Value());
  EXPECT_EQ(enter(frmPersonnage::ArtsMartiaux), "Boxe, description.");
  EXPECT_EQ(perso.lvwMartialTechnic.Count(), 3);
  EXPECT_EQ(enter(frmPersonnage::Competences), perso.lvwSkillGen.ListItems(1)->Text() + ", description.");
  EXPECT_EQ(enter(frmPersonnage::Mutation), "Peau épaisse, description.");
  perso.cmbMutaName.setVisible(false);
  EXPECT_EQ(enter(frmPersonnage::Mutation), "") << "picking the tab again enters it again";
  perso.cmbMutaName.setVisible(true);
  perso.cmbMutaCateg.setListIndex(-1);
  EXPECT_EQ(enter(frmPersonnage::Mutation), "") << "no power is selected";
}

TEST_F(Window, IsNamedOnceTheNameFieldIsLeft) {
  auto& perso = *open();
  user.type(perso.txtPerso, "Anne");
  EXPECT_EQ(perso.Caption(), "");
  user.focus(perso.txtAge);
  EXPECT_EQ(perso.Caption(), "Définition Anne");
  user.focus(perso.txtPerso);
  user.focus(perso.txtAge);
  EXPECT_EQ(perso.Caption() + perso.txtPerso.Text(), "Définition AnneAnne");
  name(perso, "");
  EXPECT_EQ(perso.Caption(), "Définition ");
}

TEST_F(Window, MayNotTakeTheNameOfAnother) {
  auto& first = *open();
  auto& second = *open();
  name(first, "Anne");
  name(second, "Anne");
  EXPECT_EQ(second.txtPerso.Text() + second.Caption(), "");
  EXPECT_EQ(first.Caption(), "Définition Anne");
  name(second, "anne");
  EXPECT_EQ(second.Caption(), "Définition anne") << "case counts";
  name(first, "");
  name(second, "");
  EXPECT_EQ(second.Caption(), "Définition ") << "no name can be taken";
  name(first, "Anne");
  user.close(first);
  name(second, "Anne");
  EXPECT_EQ(second.Caption(), "Définition Anne") << "a closed window keeps no name";
}

TEST_F(Window, SharesNothingWithAnother) {
  auto& first = *open();
  auto& second = *open();
  user.pick(first.SSTabPerso, frmPersonnage::ArtsMartiaux);
  user.row(first.lvwMartialArt, 1);
  user.click(first.cmdMartialArtModif(1));
  user.toggle(first.lvwMartialTechnic, "Crochet");
  user.click(first.cmdMartialArtModif(1));
  user.click(first.cmdMartialArtModif(0));
  EXPECT_TRUE(first.colPersoArt(1)->colMartialTechnic(1)->bSelected);
  EXPECT_FALSE(second.colPersoArt(1)->colMartialTechnic(1)->bSelected);
  EXPECT_FALSE(data.colMartialArt(1)->colMartialTechnic(1)->bSelected);
  EXPECT_EQ(first.txtMartialArtRest.Text() + " " + second.txtMartialArtRest.Text(), "9 10");
  EXPECT_EQ(second.SSTabPerso.Tab(), frmPersonnage::EtatCivil);
  EXPECT_EQ(second.focused(), nullptr);
}

TEST_F(Window, TheOneInUseIsTheOneActivatedLast) {
  auto* first = open();
  auto* second = open();
  EXPECT_EQ(globals.frmCurrentPerso, second);
  user.click(first->cmdHelp);
  EXPECT_EQ(globals.frmCurrentPerso, first);
  user.activate(*second);
  EXPECT_EQ(globals.frmCurrentPerso, second);
  user.click(second->cmdClose);
  EXPECT_EQ(globals.frmCurrentPerso, first);
  user.close(*first);
  EXPECT_EQ(globals.frmCurrentPerso, nullptr);
  EXPECT_EQ(desktop.Forms().size(), 0U);
}

TEST_F(Window, ClosingOneInTheBackgroundChangesNothingForTheOthers) {
  auto* first = open();
  auto* second = open();
  name(*second, "Anne");
  first->Unload();
  EXPECT_EQ(globals.frmCurrentPerso, second);
  EXPECT_EQ(second->Caption(), "Définition Anne");
}

TEST_F(Window, OpensTheSheetAndTheHelpOfTheLayersAbove) {
  auto& perso = *open();
  user.click(perso.cmdHelp);
  user.click(perso.cmdPrintPreview);
  frmPersonnage* composed = nullptr;
  int helped = 0;
  globals.composeSheet = [&](frmPersonnage& window) { composed = &window; };
  globals.showReadMe = [&] { ++helped; };
  user.click(perso.cmdHelp);
  user.click(perso.cmdPrintPreview);
  EXPECT_EQ(composed, &perso);
  EXPECT_EQ(helped, 1);
}

TEST_F(Window, ThatCannotBeLoadedLeavesTheOthersInUse) {
  auto* first = open();
  data.colProfil = {};
  EXPECT_EQ(open(), nullptr);
  EXPECT_EQ(dialogs.log.size(), 1U);
  EXPECT_EQ(globals.frmCurrentPerso, first);
  EXPECT_EQ(desktop.Forms().size(), 1U);
}

TEST_F(Window, ClosesItselfOverAFaultyFirstProfile) {
  data.colProfil.Remove(2);
  data.colProfil.Remove(2);
  EXPECT_EQ(open(), nullptr);
  EXPECT_EQ(boxes(), "16|Tessaly|Code 101 plusieurs fois dans le profil !\n");
  EXPECT_EQ(globals.frmCurrentPerso, nullptr);
  EXPECT_EQ(desktop.Forms().size(), 0U);
}

TEST_F(Window, OpensWithoutMartialArtsSkillsOrGrades) {
  data.colMartialArt = {};
  data.colSkill = {};
  data.colGrade = {};
  data.colDistrict = {};
  data.colMutation = {};
  auto* perso = open();
  ASSERT_NE(perso, nullptr);
  for (int tab = 0; tab < 6; ++tab)
    if (perso->SSTabPerso.TabEnabled(tab)) user.pick(perso->SSTabPerso, tab);
  EXPECT_EQ(boxes(), "");
}

}  // namespace
}  // namespace orvane::test
