#include "shell/main_procedure.h"

#include <gtest/gtest.h>

#include "shell/frmMain.h"
#include "shell/frmSplash.h"
#include "tests/shell/shell_world.h"
#include "tests/support/game_files.h"

namespace orvane::test {
namespace {

using Log = std::vector<std::string>;

// Writes down everything that reaches the outside world, in one list.
class StartTest : public ::testing::Test, protected Dialogs, Clock, Settings, Files, DesktopObserver {
 protected:
  Answer MsgBox(const std::string& prompt, BoxStyle style, const std::string&) override {
    log.push_back("box " + std::to_string(static_cast<int>(style)) + " " + prompt);
    now += secondsForEachBox;
    return Answer::OK;
  }
  void runModal(Form&) override { log.push_back("modal"); }
  void failure(const std::string& description) override { log.push_back("failure " + description); }

  float Timer() override {
    log.push_back("Timer");
    return now;
  }
  void sleep(float seconds) override {
    log.push_back("sleep " + numberText(seconds));
    now += seconds;
    if (now >= 86400) now -= 86400;
  }
  static std::string numberText(float seconds) { return std::to_string(static_cast<int>(seconds * 1000)) + " ms"; }

  std::string GetSetting(const std::string& application, const std::string& section, const std::string& key,
                         const std::string& defaultValue) override {
    log.push_back("GetSetting " + application + " " + section + " " + key + " " + defaultValue);
    return defaultValue;
  }
  void SaveSetting(const std::string&, const std::string&, const std::string& key, const std::string& value) override {
    log.push_back("SaveSetting " + key + " " + value);
  }

  bool fileExists(const std::string&) override { return false; }
  bool directoryExists(const std::string&) override { return false; }
  std::string read(const std::string&) override { return {}; }
  void MkDir(const std::string&) override {}
  void write(const std::string&, std::string_view) override {}
  void replace(const std::string&, const std::string&) override {}
  void Kill(const std::string&) override {}

  void shown(Form& form) override {
    const auto* splash = dynamic_cast<frmSplash*>(&form);
    log.push_back("shown " + form.Name() + (splash && !splash->cmdClose.Visible() ? " without cmdClose" : ""));
  }
  void refresh(Form& form) override { log.push_back("refresh " + form.Name()); }
  void unloaded(Form& form) override { log.push_back("unloaded " + form.Name()); }

  void start() {
    run.desktop().watch(*this);
    run.Main();
  }

  Log log;
  float now = 1000;
  float secondsForEachBox = 0;
  BlankPictures pictures;
  orvane::Run run{World{*this, *this, *this, *this, pictures}};
};

const Log eightBoxes = {
    "box 16 Fichier ethnie.txt manquant.",        "box 16 Fichier grade.txt manquant.",
    "box 16 Fichier profil.txt manquant.",        "box 16 Fichier skill.txt manquant.",
    "box 16 Fichier mutation.txt manquant.",      "box 16 Fichier martial_technic.txt manquant.",
    "box 16 Fichier martial_art.txt manquant.",   "box 16 Fichier district.txt manquant.",
    "GetSetting Tessaly Settings MainLeft 1000",  "GetSetting Tessaly Settings MainTop 1000",
    "GetSetting Tessaly Settings MainWidth 6500", "GetSetting Tessaly Settings MainHeight 6500",
};

Log started(const Log& wait) {
  Log expected = {"Timer", "shown frmSplash without cmdClose", "refresh frmSplash"};
  expected.insert(expected.end(), eightBoxes.begin(), eightBoxes.end());
  expected.insert(expected.end(), wait.begin(), wait.end());
  expected.insert(expected.end(), {"unloaded frmSplash", "shown frmMain"});
  return expected;
}

TEST_F(StartTest, RunsItsStepsInOrderAndWaitsOutTheSecond) {
  start();
  EXPECT_EQ(log, started({"Timer", "sleep 1000 ms", "Timer"}));
  EXPECT_EQ(run.globals().iContactCost, (std::array<std::int16_t, 4>{0, 1, 2, 3}));
  ASSERT_EQ(run.desktop().Forms().size(), 1U);
  EXPECT_EQ(run.desktop().Forms().front().get(), run.mainWindow());
}

TEST_F(StartTest, WaitsNoLongerThanIsLeft) {
  secondsForEachBox = 0.0625F;
  start();
  EXPECT_EQ(log, started({"Timer", "sleep 500 ms", "Timer"}));
}

TEST_F(StartTest, DoesNotWaitWhenReadingTookLonger) {
  secondsForEachBox = 3;
  start();
  EXPECT_EQ(log, started({"Timer"}));
}

TEST_F(StartTest, WaitsAcrossMidnight) {
  now = 86399.75F;
  start();
  EXPECT_EQ(log, started({"Timer", "sleep 1000 ms", "Timer"}));
  EXPECT_FLOAT_EQ(now, 0.75F);
}

TEST_F(StartTest, ClosingSavesThePlacementLast) {
  start();
  log.clear();
  run.desktop().unload(*run.mainWindow());
  EXPECT_EQ(log, (Log{"SaveSetting MainLeft 1000", "SaveSetting MainTop 1000", "SaveSetting MainWidth 6500",
                      "SaveSetting MainHeight 6500", "unloaded frmMain"}));
  EXPECT_EQ(run.mainWindow(), nullptr);
}

TEST(RunTest, RunsInOneProcessShareNothing) {
  ShellWorld one;
  ShellWorld other;
  one.files = gameFiles();
  orvane::Run first(one.world());
  orvane::Run second(other.world());
  first.Main();
  second.Main();
  EXPECT_GT(first.data().colEthnie.Count(), 0);
  EXPECT_EQ(second.data().colEthnie.Count(), 0);
  first.desktop().unload(*first.mainWindow());
  EXPECT_NE(second.mainWindow(), nullptr);
}

}  // namespace
}  // namespace orvane::test
