#include "shell/frmMain.h"

#include <gtest/gtest.h>

#include "editor/frmPersonnage.h"
#include "shell/FrmReadMe.h"
#include "shell/frmSplash.h"
#include "shell/main_procedure.h"
#include "surface/user.h"
#include "tests/shell/shell_world.h"
#include "tests/support/game_files.h"
#include "tests/support/windows_1252.h"

namespace orvane::test {
namespace {

using Log = std::vector<std::string>;

class FrameTest : public ::testing::Test {
 protected:
  FrameTest() { world.files = gameFiles(); }

  void start() {
    run.Main();
    world.dialogs.log.clear();
  }
  frmMain& frame() { return *run.mainWindow(); }
  Globals& globals() { return run.globals(); }
  // Opens a character window by the menu; gives the active child.
  frmPersonnage* newCharacter() {
    user.click(frame().mnuFileNewPJ);
    return dynamic_cast<frmPersonnage*>(run.desktop().activeChild());
  }
  std::size_t openForms() { return run.desktop().Forms().size(); }

  ShellWorld world;
  orvane::Run run{world.world()};
  User user{run.desktop()};
};

TEST_F(FrameTest, EachNewWindowIsTheCurrentOneAndHasItsOwnState) {
  start();
  auto* first = newCharacter();
  auto* second = newCharacter();
  ASSERT_TRUE(first && second && first != second);
  EXPECT_EQ(globals().frmCurrentPerso, second);
  user.type(second->txtAge, "31");
  EXPECT_EQ(first->txtAge.Text(), "");
}

TEST_F(FrameTest, TheCurrentWindowIsTheActiveOneAfterAnotherCloses) {
  start();
  auto* first = newCharacter();
  auto* second = newCharacter();
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

// The code for the vehicle may not stand twice.
class FaultyProfileTest : public FrameTest {
 protected:
  FaultyProfileTest() {
    world.files.contents["./profil.txt"] = ansi(
        "Nom;Assermenté;Description;Clefs;\r\nAssermenté;False;Socle.;14;\r\nDouble;True;Faux.;101;101;\r\n"
        "Bon;True;Juste.;14;\r\n");
  }
};

TEST_F(FaultyProfileTest, AWindowThatClosesItselfLeavesTheCurrentOne) {
  start();
  EXPECT_EQ(newCharacter(), nullptr);
  EXPECT_EQ(globals().frmCurrentPerso, nullptr);
  EXPECT_EQ(openForms(), 1U);
  EXPECT_EQ(world.dialogs.log, Log{"16|Tessaly|Code 101 plusieurs fois dans le profil !"});
}

TEST_F(FrameTest, OpensNoWindowWithoutAUsableProfile) {
  world.files.contents["./profil.txt"] = ansi("Nom;\r\nAssermenté;False;Socle.;14;\r\n");
  start();
  EXPECT_EQ(newCharacter(), nullptr);
  EXPECT_EQ(world.dialogs.log, Log{"16|Tessaly|Pas de nouveau personnage possible : aucun profil utilisable n'a été "
                                   "lu dans profil.txt."});
  EXPECT_EQ(globals().frmCurrentPerso, nullptr);
}

TEST_F(FrameTest, OpensNoWindowWithoutAnEthnicGroup) {
  world.files.contents["./ethnie.txt"] = "Nom;\r\n";
  start();
  EXPECT_EQ(newCharacter(), nullptr);
  EXPECT_EQ(world.dialogs.log,
            Log{"16|Tessaly|Pas de nouveau personnage possible : aucune ethnie n'a été lue dans ethnie.txt."});
}

TEST_F(FrameTest, ExitClosesEverythingWithoutAQuestion) {
  start();
  newCharacter();
  newCharacter();
  user.click(frame().mnuFileExit);
  EXPECT_EQ(openForms(), 0U);
  EXPECT_EQ(run.mainWindow(), nullptr);
  EXPECT_EQ(world.dialogs.log, Log{});
}

TEST_F(FrameTest, ReadsThePlacementAndTakesWhatIsNoNumberForAbsent) {
  world.settings.values = {{"Tessaly/Settings/MainLeft", "250.5"},
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
  EXPECT_EQ(world.settings.values, saved);
}

TEST_F(FrameTest, AMinimizedFrameSavesNothing) {
  start();
  frame().setWindowState(1);
  user.close(frame());
  EXPECT_TRUE(world.settings.values.empty());
}

TEST_F(FrameTest, WindowCommandsArrange) {
  struct Arranged : DesktopObserver {
    std::vector<Arrangement> seen;
    void arrange(Arrangement arrangement) override { seen.push_back(arrangement); }
  } arranged;
  start();
  run.desktop().watch(arranged);
  for (auto* entry : {&frame().mnuWindowCascade, &frame().mnuWindowTileHorizontal, &frame().mnuWindowTileVertical,
                      &frame().mnuWindowArrangeIcons})
    user.click(*entry);
  EXPECT_EQ(arranged.seen, (std::vector<Arrangement>{Arrangement::Cascade, Arrangement::TileHorizontally,
                                                     Arrangement::TileVertically, Arrangement::Icons}));
}

TEST_F(FrameTest, AboutIsModalAndHasAButton) {
  start();
  std::string seen;
  world.dialogs.modal = [&](Form& form) {
    auto& about = dynamic_cast<frmSplash&>(form);
    seen = about.lblVersion.Caption();
    EXPECT_THROW(user.click(frame().mnuFileNewPJ), Refusal);
    user.click(about.cmdClose);
    EXPECT_FALSE(about.isLoaded());
  };
  user.click(frame().mnuHelpAbout);
  EXPECT_EQ(seen, "Version 1.1.0");
  EXPECT_EQ(openForms(), 1U);
}

class HelpTest : public FrameTest {
 protected:
  FrmReadMe& open() {
    user.click(frame().mnuHelpContents);
    return dynamic_cast<FrmReadMe&>(*run.desktop().activeChild());
  }
};

TEST_F(HelpTest, ContentsAndAideBringUpTheSameWindow) {
  start();
  FrmReadMe& help = open();
  EXPECT_EQ(help.rtbReadMe.TextRTF(), world.files.contents["ReadMe.rtf"]);
  auto* character = newCharacter();
  user.click(character->cmdHelp);
  EXPECT_EQ(run.desktop().activeChild(), &help);
  EXPECT_EQ(openForms(), 3U);
  user.click(help.cmdClose);
  EXPECT_EQ(openForms(), 2U);
  EXPECT_NE(open().rtbReadMe.TextRTF(), "");
}

TEST_F(HelpTest, SaysThatTheFileIsMissing) {
  start();
  world.files.contents.erase("ReadMe.rtf");
  EXPECT_EQ(open().rtbReadMe.Text(), "Fichier ReadMe.rtf manquant.");
  EXPECT_EQ(world.dialogs.log, Log{});
}

TEST_F(HelpTest, SaysWhyTheFileCannotBeShown) {
  start();
  world.files.broken.insert("ReadMe.rtf");
  FrmReadMe& help = open();
  EXPECT_EQ(help.rtbReadMe.Text(), "Fichier ReadMe.rtf illisible : Accès refusé : ReadMe.rtf.");
  user.click(help.cmdClose);
  world.files.broken.clear();
  world.files.contents["ReadMe.rtf"] = "PK no rich text";
  EXPECT_EQ(open().rtbReadMe.Text(), "Fichier ReadMe.rtf illisible : Ce n'est pas un fichier de texte enrichi (RTF).");
  EXPECT_EQ(run.desktop().activeChild()->Caption(), "Help File");
}

}  // namespace
}  // namespace orvane::test
