#include "shell/frmMain.h"

#include <array>
#include <gtest/gtest.h>
#include <map>

#include "editor/frmPersonnage.h"
#include "shell/FrmReadMe.h"
#include "shell/main_procedure.h"
#include "surface/user.h"
#include "tests/support/fakes.h"
#include "tests/support/game_files.h"
#include "tests/support/logged_dialogs.h"
#include "tests/support/windows_1252.h"

namespace orvane::test {
namespace {

using Log = std::vector<std::string>;

// By "APPLICATION/SECTION/KEY".
class MemorySettings : public Settings {
 public:
  std::map<std::string, std::string> values;

  std::string GetSetting(const std::string& application, const std::string& section, const std::string& key,
                         const std::string& defaultValue) override {
    const auto found = values.find(application + "/" + section + "/" + key);
    return found == values.end() ? defaultValue : found->second;
  }
  void SaveSetting(const std::string& application, const std::string& section, const std::string& key,
                   const std::string& value) override {
    values[application + "/" + section + "/" + key] = value;
  }
};

class FrameTest : public ::testing::Test {
 protected:
  void start() {
    run.Main();
    dialogs.log.clear();
  }
  frmMain& frame() { return *run.mainWindow(); }
  Globals& globals() { return run.globals(); }
  // Opens a character window by the menu; gives the active child.
  frmPersonnage* newCharacter() {
    user.click(frame().mnuFileNewPJ);
    return dynamic_cast<frmPersonnage*>(run.desktop().activeChild());
  }
  FrmReadMe& openHelp() {
    user.click(frame().mnuHelpContents);
    return dynamic_cast<FrmReadMe&>(*run.desktop().activeChild());
  }

  LoggedDialogs dialogs;
  FakeClock clock;
  MemorySettings settings;
  MemoryFiles files = gameFiles();
  BlankPictures pictures;
  orvane::Run run{World{dialogs, clock, settings, files, pictures}};
  User user{run.desktop()};
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
  const std::string base = "Nom;\r\nAssermenté;False;Socle.;14;\r\n";
  // The first profile has two codes for the vehicle: its window closes itself.
  const std::string faulty = base + "Double;True;Faux.;101;101;\r\nBon;True;Juste.;14;\r\n";
  for (const auto& [path, text, box] : std::vector<std::array<std::string, 3>>{
           {"./profil.txt", faulty, "16|Tessaly|Code 101 plusieurs fois dans le profil !"},
           {"./profil.txt", base, impossible + "aucun profil utilisable n'a été lu dans profil.txt."},
           {"./ethnie.txt", "Nom;\r\n", impossible + "aucune ethnie n'a été lue dans ethnie.txt."}}) {
    files = gameFiles();
    files.contents[path] = ansi(text);
    orvane::Run other{World{dialogs, clock, settings, files, pictures}};
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
