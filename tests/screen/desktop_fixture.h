#pragma once

#include <functional>
#include <gtest/gtest.h>
#include <map>
#include <string>

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QMessageBox>
#include <QTest>
#include <QTimer>

#include "canvas/qt_pictures.h"
#include "editor/frmPersonnage.h"
#include "screen/screen_dialogs.h"
#include "screen/windows.h"
#include "shell/main_procedure.h"
#include "tests/screen/application.h"
#include "tests/support/fakes.h"
#include "tests/support/game_files.h"

namespace orvane::test {

// A store in memory.
class MemorySettings : public Settings {
 public:
  std::map<std::string, std::string> values;

  std::string GetSetting(const std::string&, const std::string&, const std::string& key,
                         const std::string& defaultValue) override {
    return values.contains(key) ? values[key] : defaultValue;
  }
  void SaveSetting(const std::string&, const std::string&, const std::string& key, const std::string& value) override {
    values[key] = value;
  }
};

// The whole program on the game, with files in memory.
class DesktopFixture : public ::testing::Test {
 protected:
  void start() {
    dialogs.setWindows(windows);
    run.Main();
    turn();
    ASSERT_TRUE(windows.mainWindow());
    windows.mainWindow()->activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(windows.mainWindow()));
  }
  ~DesktopFixture() override { settle(); }
  static void turn() { QCoreApplication::processEvents(); }
  // Deletes what waits for it, as each turn of a running event loop does.
  static void settle() {
    turn();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }
  void menu(const char* name) {
    auto* action = windows.mainWindow()->findChild<QAction*>(name);
    ASSERT_TRUE(action) << name;
    action->trigger();
    turn();
  }
  frmPersonnage& newCharacter() {
    menu("mnuFileNewPJ");
    return *run.globals().frmCurrentPerso;
  }
  void perform(const std::function<void(User&)>& act) {
    windows.door().act(act);
    turn();
  }
  void pickTab(frmPersonnage& character, int tab) {
    perform([&](User& user) { user.pick(character.SSTabPerso, tab); });
  }
  template <class Widget>
  Widget& find(const Form& form, const char* name) {
    QWidget* window = windows.childOf(form);
    if (!window) window = windows.dialogOf(form);
    auto* widget = window->findChild<Widget*>(name);
    EXPECT_TRUE(widget) << name;
    return *widget;
  }
  // What to do once a dialog or a message box has come up; it blocks whoever opened it until then.
  template <class Window>
  static void onceOpen(std::function<void(Window&)> deed) {
    QTimer::singleShot(0, [deed] {
      if (auto* window = dynamic_cast<Window*>(QApplication::activeModalWidget()))
        deed(*window);
      else
        onceOpen<Window>(deed);
    });
  }

 private:
  struct Application {
    Application() { needApplication(); }
  };
  Application application_;

 protected:
  ScreenDialogs dialogs;
  FakeClock clock;
  MemorySettings settings;
  MemoryFiles files = gameFiles();
  QtPictures pictures;
  orvane::Run run{{dialogs, clock, settings, files, pictures}};
  Windows windows{run.desktop()};
};

}  // namespace orvane::test
