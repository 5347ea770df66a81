#include "screen/windows.h"

#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QScreen>

#include "tests/screen/desktop_fixture.h"

namespace orvane::test {
namespace {

class MainWindows : public DesktopFixture {
 protected:
  // The list of windows, an entry each, the active one with a star.
  std::string windowList() {
    auto* list = windows.mainWindow()->findChild<QMenu*>("mnuWindow");
    emit list->aboutToShow();
    std::string entries;
    for (auto* action : list->actions())
      if (action->isCheckable()) entries += action->text().toStdString() + (action->isChecked() ? "*\n" : "\n");
    return entries;
  }
  QMdiSubWindow* activeChild() { return windows.mainWindow()->area().activeSubWindow(); }
  void name(frmPersonnage& character, const std::string& name) {
    perform([&](User& user) {
      user.type(character.txtPerso, name);
      user.focus(character.txtAge);
    });
  }
};

TEST_F(MainWindows, CtrlPOpensACharacterEachTimeAndF1OneHelp) {
  start();
  for (int i = 0; i < 2; ++i) QTest::keyClick(windows.mainWindow(), Qt::Key_P, Qt::ControlModifier);
  for (int i = 0; i < 2; ++i) QTest::keyClick(windows.mainWindow(), Qt::Key_F1);
  turn();
  EXPECT_EQ(windows.mainWindow()->area().subWindowList().size(), 3);
  EXPECT_EQ(activeChild()->windowTitle(), "Help File");
}

TEST_F(MainWindows, TheListTicksTheActiveWindow) {
  start();
  name(newCharacter(), "Anne & Bo");
  name(newCharacter(), "Cléo");
  EXPECT_EQ(windowList(), "&1 Définition Anne && Bo\n&2 Définition Cléo*\n");
  QTest::keyClick(windows.mainWindow(), Qt::Key_Tab, Qt::ControlModifier);
  EXPECT_EQ(windowList(), "&1 Définition Anne && Bo*\n&2 Définition Cléo\n");
  windows.mainWindow()->findChild<QMenu*>("mnuWindow")->actions().last()->trigger();
  turn();
  EXPECT_EQ(activeChild()->windowTitle(), "Définition Cléo");
}

TEST_F(MainWindows, ActivationGoesBothWays) {
  start();
  auto& first = newCharacter();
  auto& second = newCharacter();
  EXPECT_EQ(activeChild(), windows.childOf(second));
  windows.mainWindow()->area().setActiveSubWindow(windows.childOf(first));
  EXPECT_EQ(run.desktop().activeChild(), &first);
  EXPECT_EQ(run.globals().frmCurrentPerso, &first);
  // A click into a window that is not the active one.
  auto& edit = find<QLineEdit>(second, "txtAge");
  QTest::mouseClick(&edit, Qt::LeftButton);
  turn();
  EXPECT_EQ(run.desktop().activeChild(), &second);
  EXPECT_EQ(activeChild(), windows.childOf(second));
}

TEST_F(MainWindows, TheSheetIsTheActiveWindowOnceTheBoxBeforeItHasGone) {
  start();
  auto& character = newCharacter();
  name(character, "Lou");
  perform([&](User& user) { user.type(character.txtAge, "30"); });
  onceOpen<QMessageBox>([](QMessageBox& box) {
    ASSERT_TRUE(QTest::qWaitForWindowActive(&box));
    QTest::keyClick(&box, Qt::Key_Return);
  });
  QTest::mouseClick(&find<QPushButton>(character, "cmdPrintPreview"), Qt::LeftButton);
  windows.mainWindow()->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(windows.mainWindow()));
  QTest::qWait(50);
  ASSERT_EQ(run.desktop().activeChild()->Name(), "frmFeuille");
  EXPECT_EQ(activeChild(), windows.childOf(*run.desktop().activeChild()));
}

TEST_F(MainWindows, ChildrenCloseWithTheirFormsAndTheFormerOneIsActiveAgain) {
  start();
  auto& first = newCharacter();
  newCharacter();
  auto& third = newCharacter();
  for (const auto* form : {&first, &third}) windows.mainWindow()->area().setActiveSubWindow(windows.childOf(*form));
  windows.childOf(third)->close();
  settle();
  EXPECT_EQ(run.desktop().activeChild(), &first);
  EXPECT_EQ(activeChild(), windows.childOf(first));
  EXPECT_EQ(windows.mainWindow()->area().subWindowList().size(), 2);
}

TEST_F(MainWindows, ClosingItClosesAllAndRemembersThePlaceInTwips) {
  settings.values = {{"MainLeft", "600"}, {"MainTop", "450"}, {"MainWidth", "9000"}, {"MainHeight", "7500"}};
  start();
  EXPECT_EQ(windows.mainWindow()->pos(), QPoint(40, 30));
  EXPECT_EQ(windows.mainWindow()->size(), QSize(600, 500));
  windows.mainWindow()->move(60, 50);
  windows.mainWindow()->resize(640, 520);
  newCharacter();
  bool closed = false;
  windows.closed = [&] { closed = true; };
  windows.mainWindow()->close();
  settle();
  EXPECT_TRUE(closed);
  EXPECT_TRUE(run.desktop().Forms().empty());
  const std::map<std::string, std::string> kept = {
      {"MainLeft", "900"}, {"MainTop", "750"}, {"MainWidth", "9600"}, {"MainHeight", "7800"}};
  EXPECT_EQ(settings.values, kept);
}

TEST_F(MainWindows, APlaceWithoutAScreenIsGivenUp) {
  settings.values = {{"MainLeft", "900000"}, {"MainTop", "-450000"}, {"MainWidth", "9000"}, {"MainHeight", "7500"}};
  start();
  EXPECT_TRUE(windows.mainWindow()->screen()->availableGeometry().contains(windows.mainWindow()->geometry().topLeft()));
  EXPECT_EQ(windows.mainWindow()->size(), QSize(600, 500));
}

TEST_F(MainWindows, TilesHorizontallyAsRows) {
  settings.values = {{"MainWidth", "18000"}, {"MainHeight", "12000"}};
  start();
  auto& first = newCharacter();
  auto& second = newCharacter();
  const QSize room = windows.mainWindow()->area().contentsRect().size();
  menu("mnuWindowTileHorizontal");
  EXPECT_EQ(windows.childOf(second)->pos(), QPoint(0, 0));
  EXPECT_EQ(windows.childOf(first)->pos(), QPoint(0, room.height() / 2));
  menu("mnuWindowTileVertical");
  EXPECT_EQ(windows.childOf(first)->pos(), QPoint(room.width() / 2, 0));
  menu("mnuWindowCascade");
  EXPECT_EQ(windows.childOf(first)->pos(), QPoint(0, 0));
  EXPECT_GT(windows.childOf(second)->y(), 0);
  windows.childOf(first)->showMinimized();
  windows.childOf(second)->showMinimized();
  menu("mnuWindowArrangeIcons");
  EXPECT_EQ(windows.childOf(first)->geometry().bottom() + 1, room.height());
  EXPECT_EQ(windows.childOf(second)->y(), windows.childOf(first)->y());
  EXPECT_NE(windows.childOf(second)->x(), windows.childOf(first)->x());
}

TEST_F(MainWindows, CharacterWindowsKeepTheirSize) {
  start();
  auto* child = windows.childOf(newCharacter());
  const QSize before = child->widget()->size();
  child->resize(child->size() + QSize(100, 100));
  EXPECT_EQ(child->widget()->size(), before);
  child->showMinimized();
  EXPECT_LT(child->height(), 60);
  child->showNormal();
  EXPECT_EQ(child->widget()->size(), before);
}

}  // namespace
}  // namespace orvane::test
