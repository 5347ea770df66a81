#pragma once

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QMessageBox>
#include <QTest>
#include <QTimer>

#include "canvas/qt_pictures.h"
#include "screen/screen_dialogs.h"
#include "screen/windows.h"
#include "tests/screen/hands.h"
#include "tests/screen/likeness.h"
#include "tests/support/test_run.h"

namespace orvane::test {

// The whole program on the screen and on the game, with files in memory.
class DesktopFixture : public TestRun<ScreenDialogs, QtPictures> {
 protected:
  void start() {
    dialogs.setWindows(windows);
    run.Main();
    turn();
    windows.mainWindow()->activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(windows.mainWindow()));
  }
  void start(const char* width, const char* height, const char* left = "0", const char* top = "0") {
    const std::string section = "Tessaly/Settings/Main";
    settings.values = {
        {section + "Left", left}, {section + "Top", top}, {section + "Width", width}, {section + "Height", height}};
    start();
  }
  ~DesktopFixture() override { turn(); }

  MainWindow& mainWindow() { return *windows.mainWindow(); }
  void menu(const char* name) {
    auto* action = mainWindow().findChild<QAction*>(name);
    ASSERT_TRUE(action) << name;
    action->trigger();
    turn();
  }
  frmPersonnage& newCharacter() {
    menu("mnuFileNewPJ");
    return *globals().frmCurrentPerso;
  }
  void perform(const std::function<void()>& act) {
    act();
    turn();
  }
  void pickTab(frmPersonnage& character, int tab) {
    perform([&] { user.pick(character.SSTabPerso, tab); });
  }
  template <class Widget>
  Widget& find(const Form& form, const char* name) {
    auto* widget = windowOf(windows, form)->findChild<Widget*>(name);
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

  Windows windows{run.desktop(), user};
};

}  // namespace orvane::test
