#include "shell/main_procedure.h"

#include <gtest/gtest.h>

#include "shell/frmMain.h"
#include "shell/frmSplash.h"
#include "tests/support/fakes.h"

namespace orvane::test {
namespace {

// Writes down everything that reaches the outside world, in one list.
class StartTest : public ::testing::Test, protected Dialogs, Clock, Settings, DesktopObserver {
 protected:
  Answer MsgBox(const std::string& prompt, BoxStyle style, const std::string&) override {
    log.push_back("box " + std::to_string(static_cast<int>(style)) + " " + prompt);
    now += secondsForEachBox;
    return Answer::OK;
  }
  void runModal(Form&) override { log.push_back("modal"); }
  void failure(const std::string& description) override { log.push_back("failure " + description); }
  void notice(const std::string& text) override { log.push_back("notice " + text); }

  float Timer() override {
    log.push_back("Timer");
    return now;
  }
  void sleep(float seconds) override {
    log.push_back("sleep " + std::to_string(static_cast<int>(seconds * 1000)) + " ms");
    now += seconds;
    if (now >= 86400) now -= 86400;
  }

  std::string GetSetting(const std::string& application, const std::string& section, const std::string& key,
                         const std::string& defaultValue) override {
    log.push_back("GetSetting " + application + " " + section + " " + key + " " + defaultValue);
    return defaultValue;
  }
  void SaveSetting(const std::string&, const std::string&, const std::string& key, const std::string& value) override {
    log.push_back("SaveSetting " + key + " " + value);
  }

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
  MemoryFiles files;
  BlankPictures pictures;
  orvane::Run run{World{*this, *this, *this, files, pictures}};
};

Log started(const Log& wait) {
  Log expected = {"Timer", "shown frmSplash without cmdClose", "refresh frmSplash"};
  for (const char* file :
       {"ethnie", "grade", "profil", "skill", "mutation", "martial_technic", "martial_art", "district"})
    expected.push_back("box 16 Fichier " + std::string(file) + ".txt manquant.");
  for (const char* setting : {"MainLeft 1000", "MainTop 1000", "MainWidth 6500", "MainHeight 6500"})
    expected.push_back("GetSetting Tessaly Settings " + std::string(setting));
  expected.insert(expected.end(), wait.begin(), wait.end());
  expected.insert(expected.end(), {"unloaded frmSplash", "shown frmMain"});
  return expected;
}

TEST_F(StartTest, RunsItsStepsInOrderAndWaitsOutTheSecond) {
  start();
  EXPECT_EQ(log, started({"Timer", "sleep 1000 ms", "Timer"}));
  ASSERT_EQ(run.desktop().Forms().size(), 1U);
  EXPECT_EQ(run.desktop().Forms().front().get(), run.mainWindow());
  log.clear();
  run.desktop().unload(*run.mainWindow());
  EXPECT_EQ(log, (Log{"SaveSetting MainLeft 1000", "SaveSetting MainTop 1000", "SaveSetting MainWidth 6500",
                      "SaveSetting MainHeight 6500", "unloaded frmMain"}));
  EXPECT_EQ(run.mainWindow(), nullptr);
}

TEST_F(StartTest, BringsAnInterruptedSaveToItsEndBehindTheMainWindow) {
  files.directories = {"./Perso", "./Perso/.sauvegarde-1"};
  start();
  ASSERT_GE(log.size(), 2U);
  EXPECT_EQ(log[log.size() - 2], "shown frmMain");
  EXPECT_EQ(log.back(), "notice Une sauvegarde a été interrompue : ses fichiers sont de nouveau comme avant.");
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
}

}  // namespace
}  // namespace orvane::test
