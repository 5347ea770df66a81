#include "tests/sheet/sheet_fixture.h"

namespace orvane::test {
namespace {

class Composition : public SheetRun<MemoryFiles> {
 protected:
  Composition() { choose("Civil"); }

  void fillIdentity() {
    perso->txtJoueur.setText("Ada");
    perso->txtYeux.setText("Verts");
    perso->txtTaille.setText("180");
    perso->txtCheveux.setText("Noirs");
    perso->txtAge.setText("31");
    perso->txtOtherLang.setText("Grec");
    for (int i = 0; i < 3; ++i) perso->txtLang(i).setText(std::to_string(i + 1));
    for (int i = 0; i < 8; ++i) perso->txtCaract(i).setText(std::to_string(i - 2));
    perso->txtParticulSign.setText("Une cicatrice\r\nau front");
  }
  void contact(const std::string& contactName, std::int16_t info, std::int16_t react) {
    perso->colContact.Add(std::make_shared<clsContact>(clsContact{contactName, info, react, "Au port."}));
  }
  std::string mutationOf(frmFeuille& sheet) {
    return printedIn(sheet.pctRecto, sheet.shpMutaCateg) + printedIn(sheet.pctRecto, sheet.shpMutaName) +
           printedIn(sheet.pctRecto, sheet.shpMutaDescro);
  }
  void describe(std::int32_t position, const std::string& text) {
    auto changed = std::make_shared<clsMutation>(*data.colMutation(position));
    changed->sDescro = text;
    data.colMutation.Remove(position);
    data.colMutation.Add(changed);
  }
  // Shows this many skills in place of those of the profile; the texts of the three columns of levels, then of names.
  std::string skillColumns(int count) {
    perso->lvwSkillGen.Clear();
    for (int i = 1; i <= count; ++i) skill("T" + std::to_string(i), std::to_string(i));
    frmFeuille& sheet = *visualise();
    std::string text;
    for (int i = 0; i < 3; ++i) text += words(sheet, sheet.shpValues(i)) + "/";
    for (int i = 0; i < 3; ++i) text += words(sheet, sheet.shpNames(i)) + "/";
    return text;
  }
  static std::string words(frmFeuille& sheet, const Shape& box) {
    std::string text;
    for (const auto& entry : sheet.log.printed) {
      const float end = entry.x + sheet.pctVerso.TextWidth(entry.text);
      if (entry.picture == &sheet.pctVerso && (entry.x == box.Left() || end == box.Left() + box.Width()) &&
          entry.y < 7700)
        text += entry.text.substr(0, entry.text.find_last_not_of(' ') + 1) + " ";
    }
    return text;
  }
};

TEST_F(Composition, PutsTheIdentityIntoItsBoxes) {
  fillIdentity();
  perso->chkMuta.setValue(0);
  dialogs.log.clear();
  frmFeuille& sheet = *visualise();
  EXPECT_EQ(printed(sheet.pctRecto),
            "2640 1215 10 Ada\n"
            "1635 1605 10 Luc\n"
            "5820 1965 10 Verts\n"
            "3690 1965 10 180 /\n"
            "1290 1980 10 H\n"
            "5820 2340 10 Noirs\n"
            "4275 2355 10 31\n"
            "5115 1605 10 Nordique\n"
            "1290 2700 10 Civil\n"
            "1560 9720 10 1\n"
            "1560 10080 10 2\n"
            "1560 10485 10 3\n"
            "300 10500 10 Grec\n"
            "360 3990 10 -2\n"
            "360 4740 10 -1\n"
            "360 5445 10 0\n"
            "360 6180 10 1\n"
            "1845 3990 10 2\n"
            "1845 4725 10 3\n"
            "1845 5445 10 4\n"
            "1845 6180 10 5\n" +
                ("3210 3990 10 " + perso->txtEV.Text() + "\n3210 4725 10 " + perso->txtR.Text() + "\n3210 5445 10 " +
                 perso->txtSF.Text() + "\n") +
                "1125 7455 10 Aucune mutation\n"
                "6375 7440 10 Une cicatrice\n"
                "6375 7640 10 au front\n");
  EXPECT_EQ(sheet.Caption(), "Luc");
  EXPECT_EQ(sheet.pctRecto.FontName(), "Times New Roman");
}

TEST_F(Composition, LeavesOutWhatWasNotGiven) {
  perso->txtPoids.setText("80");
  frmFeuille* sheet = visualise();
  EXPECT_EQ(printedIn(sheet->pctRecto, sheet->shpTaillePoids), "10 / 80\n");
  EXPECT_EQ(printedIn(sheet->pctRecto, sheet->shpOtherLang), "");
  perso->txtPoids.setText("");
  perso->txtOtherLang.setText("autre");
  sheet = visualise();
  EXPECT_EQ(printedIn(sheet->pctRecto, sheet->shpTaillePoids), "");
  EXPECT_EQ(printedIn(sheet->pctRecto, sheet->shpOtherLang), "10 autre\n");
  for (const auto* control : sheet->controls())
    if (const auto* box = dynamic_cast<const Shape*>(control)) {
      EXPECT_EQ(box->BorderStyle(), 0) << box->id();
    }
}

TEST_F(Composition, PrintsTheContactsThatHaveAValue) {
  contact("Bob", 2, 0);
  contact("Inconnu", 0, 0);
  contact("Zoé", 0, 3);
  frmFeuille& sheet = *visualise();
  EXPECT_EQ(printedIn(sheet.pctRecto, sheet.shpContact),
            "8 Bob ( Info: 2 - Réact: 0 ) Au port.\n8 Zoé ( Info: 0 - Réact: 3 ) Au port.\n");
  EXPECT_EQ(sheet.pctVerso.FontSize(), 10);
}

TEST_F(Composition, ShowsAChosenPowerAndHidesADrawnOne) {
  EXPECT_EQ(mutationOf(*visualise()), "10 Alpha Plus 7\n10 Bond\n10 Saute haut.\n");
  perso->cmdMutaRandomChoice.setEnabled(false);
  EXPECT_EQ(mutationOf(*visualise()), "");
  perso->chkMuta.setValue(0);
  EXPECT_EQ(mutationOf(*visualise()), "10 Aucune mutation\n");
}

TEST_F(Composition, ACategoryWithoutPowersLeavesTheMutationBlank) {
  perso->cmbMutaCateg.setListIndex(3);
  ASSERT_EQ(perso->cmbMutaName.ListIndex(), -1);
  frmFeuille& sheet = *visualise();
  EXPECT_EQ(mutationOf(sheet), "");
  for (const auto* box : {&sheet.shpMutaCateg, &sheet.shpMutaName, &sheet.shpMutaDescro})
    EXPECT_EQ(box->BorderStyle(), 0) << box->id();
}

TEST_F(Composition, PrintsALongDescriptionSmaller) {
  std::string text;
  for (int i = 0; i < 26; ++i) text += "éèàùçôîêâ ";
  for (const bool longer : {false, true}) {
    describe(1, longer ? text + "!" : text);
    perso->cmbMutaCateg.setListIndex(1);
    perso->cmbMutaCateg.setListIndex(0);
    perso->cmbMutaName.setListIndex(perso->cmbMutaName.ListCount() - 1);
    frmFeuille& sheet = *visualise();
    EXPECT_EQ(printedIn(sheet.pctRecto, sheet.shpMutaDescro).substr(0, 2), longer ? "8 " : "10");
    EXPECT_EQ(sheet.pctRecto.FontSize(), 10);
  }
}

TEST_F(Composition, PrintsEachMartialRowWithPointsAndItsTechnics) {
  const frmFeuille& blank = *visualise();
  EXPECT_EQ(printedIn(blank.pctVerso, blank.shpMartialArt), "");
  perso->lvwMartialArt.ListItems(1)->setSubItems(2, "3");
  perso->lvwMartialArt.ListItems(2)->setSubItems(2, "1");
  perso->colPersoArt(1)->colMartialTechnic(1)->bSelected = true;
  perso->colPersoArt(1)->colMartialTechnic(3)->bSelected = true;
  frmFeuille& sheet = *visualise();
  EXPECT_EQ(printed(sheet.pctVerso),
            "720 7935 10 Boxe :Offensif\n"
            "720 8135 10 Crochet / Direct /\n"
            "720 8535 10 :Défensif\n"
            "720 8735 10 Crochet / Direct /\n"
            "7410 1080 10 Filature\n"
            "6835 1080 10 1\n");
}

TEST_F(Composition, SpreadsTheSkillsOverThreeColumns) {
  EXPECT_EQ(skillColumns(1), "//1 ///T1 /");
  EXPECT_EQ(skillColumns(2), "//1 2 ///T1 T2 /");
  EXPECT_EQ(skillColumns(3), "1 /2 /3 /T1 /T2 /T3 /");
  EXPECT_EQ(skillColumns(6), "1 2 /3 4 /5 6 /T1 T2 /T3 T4 /T5 T6 /");
  EXPECT_EQ(skillColumns(8), "1 2 /3 4 /5 6 7 8 /T1 T2 /T3 T4 /T5 T6 T7 T8 /");
}

TEST_F(Composition, PutsASkillAndItsLevelOnOneHeight) {
  perso->lvwSkillGen.Clear();
  skill("Tir", "5");
  skill("Arts martiaux", "9", "58");
  skill("Vol", "-2");
  frmFeuille& sheet = *visualise();
  EXPECT_EQ(printed(sheet.pctVerso),
            "7410 1080 10 Tir\n"
            "7410 1340 10 Vol\n"
            "6835 1080 10 5\n"
            "6785 1340 10 -2\n");
}

TEST_F(Composition, IssuesEquipmentToSwornOfficersOnly) {
  frmFeuille* sheet = visualise();
  EXPECT_EQ(printedIn(sheet->pctVerso, sheet->shpMatos), "");
  EXPECT_EQ(sheet->pctRecto.FontSize(), 10);
  choose("Agent");
  sheet = visualise();
  const std::string equipment = printedIn(sheet->pctVerso, sheet->shpMatos);
  EXPECT_EQ(equipment.substr(0, 29), "9 Un uniforme d'intervention,");
  EXPECT_EQ(sheet->pctRecto.FontSize(), 9);
  EXPECT_EQ(sheet->pctVerso.FontSize(), 9);
}

TEST_F(Composition, NotesWhatFindsNoRoom) {
  perso->txtPerso.setText("Luc le très long nom qui ne tient guère en une seule ligne");
  frmFeuille& sheet = *visualise();
  ASSERT_EQ(sheet.log.lost.size(), 1U);
  EXPECT_EQ(sheet.log.lost[0].shape, "shpPerso");
  EXPECT_EQ(sheet.log.lost[0].words, "seule ligne");
}

TEST_F(Composition, AFreshSheetTakesThePlaceOfItsNameOnly) {
  auto other = std::make_shared<frmPersonnage>(globals);
  desktop.perform([&] { other->Show(); });
  name(*other, "Eva");
  user.click(other->cmdPrintPreview);
  frmFeuille* const eva = globals.frmCurrentFeuille;
  desktop.activate(*perso);
  frmFeuille* const first = visualise();
  const auto kept = first->shared_from_this();
  desktop.activate(*perso);
  frmFeuille* const second = visualise();
  EXPECT_TRUE(kept->wasUnloaded());
  EXPECT_TRUE(second->isLoaded());
  EXPECT_TRUE(eva->isLoaded());
  name(*perso, "Luce");
  user.click(perso->cmdPrintPreview);
  EXPECT_TRUE(second->isLoaded());
  EXPECT_EQ(globals.frmCurrentFeuille->Caption(), "Luce");
}

TEST_F(Composition, AnInvalidCharacterKeepsItsEarlierSheet) {
  frmFeuille* const sheet = visualise();
  desktop.activate(*perso);
  perso->txtLang(2).setText("1");
  EXPECT_EQ(visualise(), nullptr);
  EXPECT_TRUE(sheet->isLoaded());
}

}  // namespace
}  // namespace orvane::test
