#include <array>

#include "shell/FrmReadMe.h"
#include "tests/support/test_run.h"

namespace orvane::test {
namespace {

class FrameTest : public TestRun<> {
 protected:
  frmMain& frame() { return *run.mainWindow(); }
  FrmReadMe& openHelp() {
    user.click(frame().mnuHelpContents);
    return dynamic_cast<FrmReadMe&>(*run.desktop().activeChild());
  }
};

TEST_F(FrameTest, TheCurrentWindowIsTheActiveOneAfterAnotherCloses) {
  start();
  auto* first = newCharacter();
  auto* second = newCharacter();
  EXPECT_EQ(globals().frmCurrentPerso, second);
  auto* third = newCharacter();
  user.activate(*first);
  EXPECT_EQ(globals().frmCurrentPerso, first);
  user.close(*first);
  EXPECT_EQ(globals().frmCurrentPerso, third);
  user.click(second->cmdClose);
  EXPECT_EQ(globals().frmCurrentPerso, third);
  user.close(*third);
  EXPECT_EQ(globals().frmCurrentPerso, nullptr);
}

TEST_F(FrameTest, OpensNoWindowThatCouldNotBeFilled) {
  const std::string impossible = "16|Tessaly|Pas de nouveau personnage possible : ";
  const std::string base = "Nom;\nAsserment\xE9;False;;14;\n";
  // The first profile has two codes for the vehicle: its window closes itself.
  const std::string faulty = base + "Double;True;Faux.;101;101;\nBon;True;Juste.;14;\n";
  for (const auto& [path, text, box] : std::vector<std::array<std::string, 3>>{
           {"./profil.txt", faulty, "16|Tessaly|Code 101 plusieurs fois dans le profil !"},
           {"./profil.txt", base, impossible + "aucun profil utilisable n'a été lu dans profil.txt."},
           {"./ethnie.txt", "Nom;\n", impossible + "aucune ethnie n'a été lue dans ethnie.txt."}}) {
    files = filesOf();
    files.contents[path] = text;
    orvane::Run other(world());
    other.Main();
    dialogs.log.clear();
    User(other.desktop()).click(other.mainWindow()->mnuFileNewPJ);
    EXPECT_EQ(dialogs.log, Log{box});
    EXPECT_EQ(other.globals().frmCurrentPerso, nullptr);
    EXPECT_EQ(other.desktop().Forms().size(), 1U);
  }
}

TEST_F(FrameTest, ReadsThePlacementAndTakesWhatIsNoNumberForAbsent) {
  settings.values = {{"Tessaly/Settings/MainLeft", "250.5"},
                     {"Tessaly/Settings/MainTop", "abc"},
                     {"Tessaly/Settings/MainWidth", ""},
                     {"Tessaly/Settings/MainHeight", "1e300"}};
  start();
  const auto& place = frame().placement();
  EXPECT_EQ(place.Left, 250.5F);
  EXPECT_EQ(place.Top, 1000);
  EXPECT_EQ(place.Width, 6500);
  EXPECT_EQ(place.Height, 6500);
}

TEST_F(FrameTest, SavesThePlacementInShortestPlainTexts) {
  start();
  frame().moved({-15, 0, 100000, 6500.5F});
  frame().setWindowState(2);
  user.close(frame());
  const std::map<std::string, std::string> saved = {{"Tessaly/Settings/MainLeft", "-15"},
                                                    {"Tessaly/Settings/MainTop", "0"},
                                                    {"Tessaly/Settings/MainWidth", "100000"},
                                                    {"Tessaly/Settings/MainHeight", "6500.5"}};
  EXPECT_EQ(settings.values, saved);
}

TEST_F(FrameTest, AMinimizedFrameSavesNothing) {
  start();
  frame().setWindowState(1);
  user.close(frame());
  EXPECT_TRUE(settings.values.empty());
}

TEST_F(FrameTest, ContentsAndAideBringUpTheSameWindow) {
  start();
  FrmReadMe& help = openHelp();
  EXPECT_EQ(help.rtbReadMe.TextRTF(), files.contents["ReadMe.rtf"]);
  user.click(newCharacter()->cmdHelp);
  EXPECT_EQ(run.desktop().activeChild(), &help);
  EXPECT_EQ(run.desktop().Forms().size(), 3U);
  user.click(help.cmdClose);
  EXPECT_NE(openHelp().rtbReadMe.TextRTF(), "") << "a fresh one";
}

TEST_F(FrameTest, HelpSaysWhyItCannotBeShown) {
  start();
  const auto shownText = [this] {
    FrmReadMe& help = openHelp();
    const std::string text = help.rtbReadMe.Text();
    user.click(help.cmdClose);
    return text;
  };
  files.broken.insert("ReadMe.rtf");
  EXPECT_EQ(shownText(), "Fichier ReadMe.rtf illisible : Accès refusé : ReadMe.rtf.");
  files.broken.clear();
  files.contents["ReadMe.rtf"] = "PK no rich text";
  EXPECT_EQ(shownText(), "Fichier ReadMe.rtf illisible : Ce n'est pas un fichier de texte enrichi (RTF).");
  files.contents.erase("ReadMe.rtf");
  EXPECT_EQ(shownText(), "Fichier ReadMe.rtf manquant.");
  EXPECT_EQ(dialogs.log, Log{});
}

}  // namespace
}  // namespace orvane::test
