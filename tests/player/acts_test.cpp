#include <gtest/gtest.h>

#include "tests/player/play_fixture.h"

namespace orvane::test {
namespace {

class ActsTest : public PlayFixture {
 protected:
  // What a script prints behind the opening of a character window; refusals do not end it.
  std::string played(const std::string& acts) {
    status = play("click mnuFileNewPJ\n" + acts, {"--keep-going"});
    return transcript();
  }
  int status = -1;
};

TEST_F(ActsTest, ARefusedActChangesNothing) {
  const std::string quiet = played("type txtPerso \"A\"\nfocus txtAge\nstate\nwindows\n");
  EXPECT_EQ(status, 0);
  const std::string refused = played(
      "type txtPerso \"A\"\nfocus txtAge\n"
      "click cmdCaractModif(1)\n"     // on another tab
      "click cmbMutaSign\n"           // hidden
      "click mnuFile\n"               // only opens
      "click mnuFileBar3\n"           // a separator
      "type cmbSexe \"X\"\n"          // list-only
      "type txtAllDescro \"X\"\n"     // read-only
      "pick cmbSexe \"X\"\n"          // no such entry
      "pick cmbSexe 2\n"              //
      "pick cmbSexe -1\n"             //
      "pick SSTabPerso 6\n"           // a hidden tab
      "click txtLang(3)\n"            // no such control
      "click txtLang\n"               //
      "focus Label1\n"                // takes no focus
      "scroll txtAge 0\n"             // no scroll bar
      "get Label1.Text\n"             // no such property
      "get mnuFileExit.Caption\n"     //
      "expect txtAge.Caption \"\"\n"  //
      "list txtAge\n"                 // no entries
      "printed txtAge\n"              // no picture
      "lost\n"                        // no sheet
      "window 0\n"                    // the frame
      "window 7\nwindow -1\n"         // no such window
      "window \"B\"\n"
      "state\nwindows\n");
  EXPECT_EQ(status, 1);
  std::string rest;
  int refusals = 0;
  std::istringstream lines(refused);
  for (std::string line; std::getline(lines, line);)
    if (line.starts_with("refused -:"))
      ++refusals;
    else
      rest += line + "\n";
  EXPECT_EQ(refusals, 24);
  EXPECT_EQ(rest, quiet);
}

TEST_F(ActsTest, RefusalsKeepTheFocusWhereItIs) {
  EXPECT_EQ(played("type txtPerso \"Anne\"\nclick cmdContactModif(0)\nwindows\nfocus txtAge\nwindows\n"),
            "refused -:3: cmdContactModif(0) est désactivé.\n"
            "window 0 frmMain \"Orvane\"\nwindow 1 frmPersonnage \"\" active\n"
            "window 0 frmMain \"Orvane\"\nwindow 1 frmPersonnage \"Définition Anne\" active\n");
}

TEST_F(ActsTest, AnswersBoxesWithWhatWasLaidDownElseTheFirstButton) {
  files.contents["./grade.txt"] = "x";
  const std::string save =
      "type txtPerso \"Anne\"\nclick cmdPrintPreview\nanswer Cancel\nclick cmdSave(0)\nclick cmdSave(0)\n";
  const std::string question =
      R"x("Sauvegarde de Anne" "Après la sauvegarde, vous ne pourrez plus modifier le personnage.\r\n)x"
      R"x(Etes-vous certain de vouloir continuer ?" )x";
  const std::string shown = played(save);
  const auto first = shown.find("box 33 " + question + "Cancel\n");
  const auto second = shown.find("box 33 " + question + "OK\n");
  EXPECT_NE(first, std::string::npos) << shown;
  EXPECT_LT(first, second) << shown;
}

TEST_F(ActsTest, AnAnswerThatFitsNoButtonIsRefusedBeforeItsBox) {
  const std::string shown = played("click cmdPrintPreview\nanswer Yes Cancel\nclick cmdPrintPreview\nwindows\n");
  const std::string box =
      R"x(box 48 "Tessaly" "Attention, le personnage n'est pas valide.\r\nLes contraintes essentielles non valides )x"
      R"x(sont indiquées en rouge.\r\n(vérifez aussi les compétences)" OK)x"
      "\n";
  EXPECT_EQ(shown, box + "refused -:4: La boîte « Tessaly » n'a pas de bouton Yes.\n" + box +
                       "window 0 frmMain \"Orvane\"\nwindow 1 frmPersonnage \"\" active\n");
  EXPECT_EQ(status, 1);
}

TEST_F(ActsTest, LeftOverAnswersAreDroppedAtTheEndOfTheScript) {
  files.contents["one"] = "click mnuFileNewPJ\nanswer No\n";
  files.contents["two"] = "click cmdPrintPreview\n";
  EXPECT_EQ(play("", {"one", "two"}), 0);
}

TEST_F(ActsTest, AModalDialogTakesTheNextActsAndItsHandlerGoesOn) {
  EXPECT_EQ(played("pick SSTabPerso 2\n"
                   "click cmdContactNew\n"
                   "click mnuFileNewPJ\n"
                   "click cmdContactNew\n"
                   "window 1\n"
                   "windows\n"
                   "type txtContactName \"Mme Dru\"\ntype txtContactDescro \"Sa concierge\"\n"
                   "click OKButton\n"
                   "list lstContact\n"
                   "get lstContact.ListCount\n"),
            "refused -:4: mnuFileNewPJ : la fenêtre « Nouveau contact » attend d'abord une réponse.\n"
            "refused -:5: Pas de contrôle cmdContactNew dans la fenêtre « Nouveau contact ».\n"
            "refused -:6: La fenêtre « Nouveau contact » attend d'abord une réponse.\n"
            "window 0 frmMain \"Orvane\"\nwindow 1 frmPersonnage \"\"\nwindow 2 frmContact \"Nouveau contact\" active\n"
            "lstContact[0] \"Mme Dru\"\n"
            "lstContact.ListCount 1\n");
}

TEST_F(ActsTest, TheEndOfAScriptClosesItsDialog) {
  files.contents["one"] = "click mnuFileNewPJ\npick SSTabPerso 2\nclick cmdContactNew\n";
  files.contents["two"] = "windows\nget lstContact.ListCount\n";
  EXPECT_EQ(play("", {"one", "two"}), 0);
  EXPECT_EQ(transcript(), "window 0 frmMain \"Orvane\"\nwindow 1 frmPersonnage \"\" active\nlstContact.ListCount 0\n");
}

TEST_F(ActsTest, ARefusalInADialogEndsTheRunAndClosesIt) {
  EXPECT_EQ(play("click mnuHelpAbout\nclick nothing\nwindows\n"), 1);
  EXPECT_EQ(transcript(), "refused -:2: Pas de contrôle nothing dans la fenêtre « frmSplash ».\n");
}

TEST_F(ActsTest, AnExpectationThatFailsDoesNotEndTheRun) {
  EXPECT_EQ(play("click mnuFileNewPJ\nexpect txtLangRest.Text \"9\"\nexpect txtLangRest.Text 9\n"
                 "expect txtLangRest.BackColor 80000005\nexpect optLang(0).Value False\nget optLang(0).Value\n"),
            1);
  EXPECT_EQ(transcript(),
            "expected -:3: txtLangRest.Text 9, not \"9\"\n"
            "expected -:5: optLang(0).Value False, not True\n"
            "optLang(0).Value True\n");
}

TEST_F(ActsTest, TheClockStandsWhereAScriptSetsIt) {
  const std::string draw =
      "pick SSTabPerso 5\nclock 43210.5\nclick cmdMutaRandomChoice\nget cmbMutaName.ListIndex\nget txtSkillRest.Text\n";
  const std::string first = played(draw);
  clock.now = 7;
  EXPECT_EQ(played(draw), first);
}

TEST_F(ActsTest, AfterTheFrameClosedEveryControlIsRefused) {
  EXPECT_EQ(played("click mnuFileExit\nwindows\nclick mnuFileNewPJ\nstate\nclose\n"),
            "refused -:4: Aucune fenêtre n'est ouverte.\n"
            "refused -:5: Aucune fenêtre n'est ouverte.\n"
            "refused -:6: Aucune fenêtre n'est ouverte.\n");
}

TEST_F(ActsTest, ReasonsStayOnOneLine) {
  EXPECT_EQ(played("window \"a\\nb\\tc\"\n"), "refused -:2: Pas de fenêtre « a\\nb\\tc ».\n");
}

}  // namespace
}  // namespace orvane::test
