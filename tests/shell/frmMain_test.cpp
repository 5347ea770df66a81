#include <array>
#include <cmath>

#include "shell/FrmReadMe.h"
#include "shell/rtf_reader.h"
#include "tests/support/test_run.h"

namespace orvane::test {
namespace {

class FrameTest : public TestRun<> {
 protected:
  static std::map<std::string, std::string> places(const char* left, const char* top, const char* width,
                                                   const char* height) {
    const std::string key = "Tessaly/Settings/Main";
    return {{key + "Left", left}, {key + "Top", top}, {key + "Width", width}, {key + "Height", height}};
  }
  frmMain& frame() { return *run.mainWindow(); }
  FrmReadMe& openHelp() {
    user.click(frame().mnuHelpContents);
    return dynamic_cast<FrmReadMe&>(*run.desktop().activeChild());
  }
};

TEST_F(FrameTest, TakesAPlacementThatNoDesktopHasRoomForAsAbsentAndStoresNone) {
  start();
  using Numbers = std::vector<float>;
  const Numbers usual{1000, 1000, 6500, 6500};
  for (const auto& [stored, taken] : std::initializer_list<std::pair<std::array<const char*, 4>, Numbers>>{
           {{"250.5", "-15", "3000", "1500"}, {250.5F, -15, 3000, 1500}},
           {{"abc", "", "1e300", "nan"}, usual},
           {{"3.2e10", "-3.2e10", "0", "-6500"}, usual},
           {{"491506", "-491506", "2940", "1305"}, usual}}) {
    settings.values = places(stored[0], stored[1], stored[2], stored[3]);
    const auto window = std::make_shared<frmMain>(globals());
    window->Load();
    const auto& place = window->placement();
    EXPECT_EQ((Numbers{place.Left, place.Top, place.Width, place.Height}), taken) << stored[0];
  }
  frame().moved({-3.2e10F, 3.2e10F, 0, std::nanf("")});
  settings.values.clear();
  user.close(frame());
  EXPECT_TRUE(settings.values.empty());
}

TEST_F(FrameTest, SavesThePlacementInShortestPlainTexts) {
  start();
  frame().moved({-15, 0, 100000, 6500.5F});
  frame().setWindowState(2);
  user.close(frame());
  EXPECT_EQ(settings.values, places("-15", "0", "100000", "6500.5"));
}

TEST_F(FrameTest, AMinimizedFrameSavesNothing) {
  start();
  frame().setWindowState(1);
  user.close(frame());
  EXPECT_TRUE(settings.values.empty());
}

TEST_F(FrameTest, HelpIsOneWindowAndSaysWhyItCannotBeShown) {
  start();
  FrmReadMe& help = openHelp();
  EXPECT_EQ(help.rtbReadMe.Html(), RtfReader::html(files.contents["ReadMe.rtf"]));
  user.click(newCharacter()->cmdHelp);
  EXPECT_EQ(run.desktop().activeChild(), &help);
  user.click(help.cmdClose);
  const auto shownText = [this] {
    FrmReadMe& fresh = openHelp();
    const std::string text = fresh.rtbReadMe.Text();
    user.click(fresh.cmdClose);
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
