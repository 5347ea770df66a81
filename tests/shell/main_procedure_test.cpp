#include "shell/main_procedure.h"

#include <gtest/gtest.h>

#include "shell/frmMain.h"
#include "shell/frmSplash.h"
#include "tests/support/fakes.h"

namespace orvane::test {
namespace {

// Writes down everything that reaches the outside world, in one list.
class Outside : Dialogs, Clock, Settings, DesktopObserver {
 public:
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

 private:
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

TEST(Start, RunsItsStepsInOrderAndWaitsForWhatIsLeftOfASecond) {
  const struct {
    float now, secondsForEachBox;
    Log wait;
  } starts[] = {{1000, 0, {"Timer", "sleep 1000 ms", "Timer"}},
                {1000, 0.0625F, {"Timer", "sleep 500 ms", "Timer"}},
                {1000, 0.125F, {"Timer"}},
                {1000, 3, {"Timer"}},
                {86399.75F, 0, {"Timer", "sleep 1000 ms", "Timer"}}};  // across midnight
  for (const auto& [now, secondsForEachBox, wait] : starts) {
    Outside outside;
    outside.now = now;
    outside.secondsForEachBox = secondsForEachBox;
    outside.start();
    EXPECT_EQ(outside.log, started(wait));
  }
}

TEST(Start, EndsWithTheMainWindow) {
  Outside outside;
  outside.files.directories = {"./Perso", "./Perso/.sauvegarde-1"};
  outside.start();
  EXPECT_EQ(outside.log.back(), "notice Une sauvegarde a été interrompue : ses fichiers sont de nouveau comme avant.");
  EXPECT_EQ(*(outside.log.end() - 2), "shown frmMain");
  ASSERT_EQ(outside.run.desktop().Forms().size(), 1U);
  EXPECT_EQ(outside.run.desktop().Forms().front().get(), outside.run.mainWindow());
  outside.log.clear();
  outside.run.desktop().unload(*outside.run.mainWindow());
  EXPECT_EQ(outside.log, (Log{"SaveSetting MainLeft 1000", "SaveSetting MainTop 1000", "SaveSetting MainWidth 6500",
                              "SaveSetting MainHeight 6500", "unloaded frmMain"}));
  EXPECT_EQ(outside.run.mainWindow(), nullptr);
}

}  // namespace
}  // namespace orvane::test
