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
  const std::string before = "type txtPerso \"A\"\nfocus txtAge\n";
  const std::string after = "state\nwindows\n";
  const std::string quiet = played(before + after);
  EXPECT_EQ(status, 0);
  const std::vector<std::string> wrong = {
      // on another tab, hidden, only opens, a separator, list-only, read-only, a hidden tab
      "click cmdCaractModif(1)", "click cmbMutaSign", "click mnuFile", "click mnuFileBar3", "type cmbSexe \"X\"",
      "type txtAllDescro \"X\"", "pick SSTabPerso 6",
      // no such entry, control, property, list, picture
      "pick cmbSexe \"X\"", "pick cmbSexe 2", "pick cmbSexe -1", "click txtLang(3)", "click txtLang", "get Label1.Text",
      "get mnuFileExit.Caption", "expect txtAge.Caption \"\"", "list txtAge", "printed txtAge",
      // no focus, no scroll bar, no sheet
      "focus Label1", "scroll txtAge 0", "lost",
      // the frame, no such windows
      "window 0", "window 7", "window -1", "window \"B\""};
  std::string acts;
  for (const auto& act : wrong) acts += act + "\n";
  std::istringstream lines(played(before + acts + after));
  EXPECT_EQ(status, 1);
  std::string rest;
  std::size_t refusals = 0;
  for (std::string line; std::getline(lines, line);)
    if (line.starts_with("refused -:"))
      ++refusals;
    else
      rest += line + "\n";
  EXPECT_EQ(refusals, wrong.size());
  EXPECT_EQ(rest, quiet);
}

TEST_F(ActsTest, RefusalsKeepTheFocusWhereItIs) {
  EXPECT_EQ(played("type txtPerso \"Anne\"\nclick cmdContactModif(0)\nwindows\nfocus txtAge\nwindows\n"),
            "refused -:3: cmdContactModif(0) est désactivé.\n"
            "window 0 frmMain \"Orvane\"\nwindow 1 frmPersonnage \"\" active\n"
            "window 0 frmMain \"Orvane\"\nwindow 1 frmPersonnage \"Définition Anne\" active\n");
}

TEST_F(ActsTest, AnAnswerThatFitsNoButtonIsRefusedBeforeItsBox) {
  const std::string shown = played("answer Yes Cancel\nclick cmdPrintPreview\n");
  EXPECT_TRUE(shown.starts_with("refused -:3: La boîte « Tessaly » n'a pas de bouton Yes.\nbox 48 \"Tessaly\""))
      << shown;
  EXPECT_TRUE(shown.ends_with("\" OK\n")) << shown;
  EXPECT_EQ(status, 1);
}

TEST_F(ActsTest, LeftOverAnswersAreDroppedAtTheEndOfTheScript) {
  files.contents["one"] = "click mnuFileNewPJ\nanswer No\n";
  files.contents["two"] = "click cmdPrintPreview\n";
  EXPECT_EQ(play("", {"one", "two"}), 0);
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

}  // namespace
}  // namespace orvane::test
