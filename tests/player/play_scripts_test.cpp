#include "player/play_scripts.h"

#include <gtest/gtest.h>
#include <sstream>

#include "tests/support/approved.h"
#include "tests/support/fakes.h"

namespace orvane::test {
namespace {

// The player on the game, with files in memory. Scripts go to standard input or to files of their own.
class CommandLineTest : public ::testing::Test, protected TestWorld<> {
 protected:
  CommandLineTest() {
    files = filesOf();
    files.contents["one.script"] = "click mnuFileNewPJ\ntype txtAge \"31\"\nget txtAge.Text\n";
    files.contents["two.script"] = "windows\nget txtAge.Text\n";
    files.contents["refused.script"] = "get txtAge.Text\n";
    files.contents["wrong.script"] = "windows\nhop\n";
  }
  int play(const std::string& script, const std::vector<std::string>& arguments = {}) {
    std::istringstream in(script);
    out.str("");
    err.str("");
    return playScripts(arguments, in, out, err, {files, pictures, clock});
  }
  std::string transcript() const { return out.str(); }

  std::ostringstream out;
  std::ostringstream err;
};

TEST_F(CommandLineTest, PlaysStandardInputWithoutAScript) {
  EXPECT_EQ(play("windows\n"), 0);
  EXPECT_EQ(transcript(), "window 0 frmMain \"Orvane\"\n");
  EXPECT_EQ(play("# rien"), 0);
  EXPECT_EQ(transcript(), "");
  EXPECT_EQ(err.str(), "");
}

TEST_F(CommandLineTest, PlaysSeveralScriptsInOneRun) {
  EXPECT_EQ(play("type txtAge \"32\"\n", {"one.script", "-", "two.script"}), 0);
  EXPECT_EQ(transcript(),
            "txtAge.Text \"31\"\n"
            "window 0 frmMain \"Orvane\"\n"
            "window 1 frmPersonnage \"\" active\n"
            "txtAge.Text \"32\"\n");
}

TEST_F(CommandLineTest, EachScriptEndsItsDialogsAndItsAnswers) {
  files.contents["one.script"] =
      "click mnuFileNewPJ\npick SSTabPerso 2\nanswer No\nclick cmdContactNew\ntype txtContactName \"Zoé\"\n";
  files.contents["two.script"] = "windows\nget lstContact.ListCount\nclick cmdPrintPreview\n";
  EXPECT_EQ(play("", {"one.script", "two.script"}), 0);
  EXPECT_TRUE(
      transcript().starts_with("window 0 frmMain \"Orvane\"\nwindow 1 frmPersonnage \"\" active\n"
                               "lstContact.ListCount 0\nbox 48"))
      << transcript();
}

TEST_F(CommandLineTest, TheFirstRefusalEndsTheWholeRunUnlessItKeepsGoing) {
  const std::string refusal = "refused refused.script:1: Aucune fenêtre n'est ouverte.\n";
  EXPECT_EQ(play("", {"refused.script", "one.script"}), 1);
  EXPECT_EQ(transcript(), refusal);
  EXPECT_EQ(play("", {"refused.script", "--keep-going", "one.script"}), 1);
  EXPECT_EQ(transcript(), refusal + "txtAge.Text \"31\"\n");
}

TEST_F(CommandLineTest, PlaysNothingWhenOneScriptIsWrongOrCannotBeRead) {
  for (const auto& [wrong, error] : {std::pair{"wrong.script", "wrong.script:2: acte inconnu « hop »\n"},
                                     std::pair{"none.script", "none.script: Fichier introuvable : none.script.\n"}}) {
    EXPECT_EQ(play("", {"one.script", wrong}), 2);
    EXPECT_EQ(transcript(), "");
    EXPECT_EQ(err.str(), error);
  }
}

// What dead programs left is told beside the transcript.
TEST_F(CommandLineTest, BringsAnInterruptedSaveToItsEndAtTheStart) {
  files.directories = {"./Perso", "./Perso/.sauvegarde-1"};
  for (const char* file :
       {"Luc_1.bmp", ".sauvegarde-1/Luc_1.old", ".sauvegarde-1/Luc_2.bmp", ".sauvegarde-1/Luc_2.nil"})
    files.contents[std::string("./Perso/") + file] = file;
  EXPECT_EQ(play("# rien"), 0);
  EXPECT_EQ(transcript(), "");
  EXPECT_EQ(err.str(),
            "orvane-batch: La sauvegarde de « Luc » a été interrompue : ses fichiers sont de nouveau comme avant.\n");
  EXPECT_EQ(files.directories, (std::set<std::string>{"./Perso"}));
  EXPECT_EQ(files.contents["./Perso/Luc_1.bmp"], ".sauvegarde-1/Luc_1.old");
  EXPECT_EQ(files.contents.count("./Perso/Luc_2.bmp"), 0U);
}

TEST_F(CommandLineTest, ASheetThatCouldNotBeSavedIsAStatusOfItsOwn) {
  const std::string save =
      "click mnuFileNewPJ\ntype txtPerso \"Luc\"\nclick cmdPrintPreview\nwindow \"Luc\"\nclick cmdSave(0)\n";
  EXPECT_EQ(play(save), 0);
  files.locked = true;
  EXPECT_EQ(play(save), 3);
  EXPECT_EQ(play(save + "click cmdNone\n", {"--keep-going"}), 3);
}

TEST_F(CommandLineTest, AMessageIsNeverLong) {
  EXPECT_EQ(play(std::string(1000000, 'x')), 2);
  EXPECT_LT(err.str().size(), 20000U);
  EXPECT_EQ(play("window \"" + std::string(1000000, 'x') + "\""), 1);
  EXPECT_LT(out.str().size(), 20000U);
  EXPECT_EQ(play(std::string(largestFile + 1, '#')), 2);
  EXPECT_EQ(err.str(), "-: Lecture impossible (le fichier dépasse 64 Mio).\n");
}

TEST_F(CommandLineTest, KnowsNoOtherOption) {
  EXPECT_EQ(play("windows", {"--keep-goin"}), 2);
  EXPECT_EQ(transcript(), "");
  EXPECT_NE(err.str().find("--keep-goin\n"), std::string::npos);
}

TEST_F(CommandLineTest, SaysThatTheTranscriptCouldNotBeWritten) {
  std::istringstream in("windows\n");
  std::ostringstream full;
  full.setstate(std::ios::badbit);
  EXPECT_EQ(playScripts({}, in, full, err, {files, pictures, clock}), 1);
  EXPECT_EQ(err.str(), "orvane-batch: la transcription n'a pas pu être écrite\n");
}

}  // namespace
}  // namespace orvane::test
