#include "screen/windows.h"

#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>

#include "player/script_parser.h"
#include "session/session.h"
#include "sheet/frmFeuille.h"
#include "tests/screen/desktop_fixture.h"

namespace orvane::test {
namespace {

class MainWindows : public DesktopFixture {
 protected:
  // The list of windows, an entry each, the active one with a star.
  std::string windowList() {
    auto* list = mainWindow().findChild<QMenu*>("mnuWindow");
    emit list->aboutToShow();
    std::string entries;
    for (auto* action : list->actions())
      if (action->isCheckable()) entries += action->text().toStdString() + (action->isChecked() ? "*\n" : "\n");
    return entries;
  }
  QMdiSubWindow* activeChild() { return mainWindow().area().activeSubWindow(); }
  void name(frmPersonnage& character, const std::string& name) {
    perform([&] {
      user.type(character.txtPerso, name);
      user.focus(character.txtAge);
    });
  }
};

TEST_F(MainWindows, CtrlPOpensACharacterEachTimeAndF1OneHelp) {
  start();
  for (int i = 0; i < 2; ++i) QTest::keyClick(&mainWindow(), Qt::Key_P, Qt::ControlModifier);
  for (int i = 0; i < 2; ++i) QTest::keyClick(&mainWindow(), Qt::Key_F1);
  turn();
  EXPECT_EQ(mainWindow().area().subWindowList().size(), 3);
  EXPECT_EQ(activeChild()->windowTitle(), "Help File");
}

TEST_F(MainWindows, TheListTicksTheActiveWindow) {
  start();
  name(newCharacter(), "Anne & Bo");
  name(newCharacter(), "Cléo");
  EXPECT_EQ(windowList(), "&1 Définition Anne && Bo\n&2 Définition Cléo*\n");
  QTest::keyClick(&mainWindow(), Qt::Key_Tab, Qt::ControlModifier);
  EXPECT_EQ(windowList(), "&1 Définition Anne && Bo*\n&2 Définition Cléo\n");
  mainWindow().findChild<QMenu*>("mnuWindow")->actions().last()->trigger();
  turn();
  EXPECT_EQ(activeChild()->windowTitle(), "Définition Cléo");
  // An icon comes back, also the one of the active window.
  auto* icon = activeChild();
  icon->showMinimized();
  EXPECT_EQ(windowList(), "&1 Définition Anne && Bo\n&2 Définition Cléo*\n");
  mainWindow().findChild<QMenu*>("mnuWindow")->actions().last()->trigger();
  turn();
  EXPECT_FALSE(icon->isMinimized());
  EXPECT_EQ(activeChild(), icon);
}

TEST_F(MainWindows, ActivationGoesBothWays) {
  start();
  auto& first = newCharacter();
  auto& second = newCharacter();
  EXPECT_EQ(activeChild(), windows.childOf(second));
  mainWindow().area().setActiveSubWindow(windows.childOf(first));
  EXPECT_EQ(run.desktop().activeChild(), &first);
  EXPECT_EQ(globals().frmCurrentPerso, &first);
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
  perform([&] { user.type(character.txtAge, "30"); });
  onceOpen<QMessageBox>([](QMessageBox& box) {
    ASSERT_TRUE(QTest::qWaitForWindowActive(&box));
    QTest::keyClick(&box, Qt::Key_Return);
  });
  QTest::mouseClick(&find<QPushButton>(character, "cmdPrintPreview"), Qt::LeftButton);
  mainWindow().activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&mainWindow()));
  QTest::qWait(50);
  ASSERT_EQ(run.desktop().activeChild()->Name(), "frmFeuille");
  EXPECT_EQ(activeChild(), windows.childOf(*run.desktop().activeChild()));
}

TEST_F(MainWindows, ChildrenCloseWithTheirFormsAndTheFormerOneIsActiveAgain) {
  start();
  auto& first = newCharacter();
  newCharacter();
  auto& third = newCharacter();
  for (const auto* form : {&first, &third}) mainWindow().area().setActiveSubWindow(windows.childOf(*form));
  windows.childOf(third)->close();
  turn();
  EXPECT_EQ(run.desktop().activeChild(), &first);
  EXPECT_EQ(activeChild(), windows.childOf(first));
  EXPECT_EQ(mainWindow().area().subWindowList().size(), 2);
}

TEST_F(MainWindows, ClosingItClosesAllAndRemembersThePlaceInTwips) {
  start("9000", "7500", "600", "450");
  EXPECT_EQ(mainWindow().pos(), QPoint(40, 30));
  EXPECT_EQ(mainWindow().size(), QSize(600, 500));
  newCharacter();
  mainWindow().move(60, 50);
  mainWindow().resize(640, 520);
  bool closed = false;
  windows.closed = [&] { closed = true; };
  mainWindow().close();
  turn();
  EXPECT_TRUE(closed);
  EXPECT_TRUE(run.desktop().Forms().empty());
  const std::map<std::string, std::string> kept = {{"Tessaly/Settings/MainLeft", "900"},
                                                   {"Tessaly/Settings/MainTop", "750"},
                                                   {"Tessaly/Settings/MainWidth", "9600"},
                                                   {"Tessaly/Settings/MainHeight", "7800"}};
  EXPECT_EQ(settings.values, kept);
}

TEST_F(MainWindows, APlaceWithoutAScreenIsGivenUp) {
  start("9000", "7500", "900000", "-450000");
  EXPECT_TRUE(mainWindow().screen()->availableGeometry().contains(mainWindow().geometry().topLeft()));
  EXPECT_EQ(mainWindow().size(), QSize(600, 500));
}

TEST_F(MainWindows, TilesHorizontallyAsRows) {
  start("18000", "12000");
  auto& first = newCharacter();
  auto& second = newCharacter();
  const QSize room = mainWindow().area().contentsRect().size();
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

TEST_F(MainWindows, CascadesBesideTheBarThatScrolls) {
  start("15000", "12000");
  const auto sheet = std::make_shared<frmFeuille>(globals());
  sheet->Show();
  auto* last = windows.childOf(*sheet);
  last->resize(2000, 400);
  menu("mnuWindowCascade");
  auto& area = mainWindow().area();
  EXPECT_EQ(last->geometry().right() + 1,
            area.contentsRect().width() - area.style()->pixelMetric(QStyle::PM_ScrollBarExtent));
}

TEST_F(MainWindows, GrowsForAChildAndStaysSo) {
  start();
  EXPECT_EQ(mainWindow().size(), QSize(433, 433));
  auto& character = newCharacter();
  const QSize grown = mainWindow().size();
  const QRect screen = mainWindow().screen()->availableGeometry();
  EXPECT_EQ(mainWindow().frameGeometry().width(), screen.width()) << "no wider than the screen";
  EXPECT_LT(mainWindow().frameGeometry().height(), screen.height()) << "no higher than needed";
  EXPECT_EQ(mainWindow().area().verticalScrollBar()->maximum(), 0);
  windows.childOf(character)->close();
  turn();
  EXPECT_EQ(mainWindow().size(), grown);
}

TEST_F(MainWindows, ScrollsNoFurtherThanAFieldNeeds) {
  start();
  auto& character = newCharacter();
  const auto* child = windows.childOf(character);
  mainWindow().resize(500, 300);
  find<QWidget>(character, "txtJoueur").setFocus();  // wide, at the left
  EXPECT_EQ(child->pos(), QPoint(0, 0));
  find<QWidget>(character, "cmdClose").setFocus();
  EXPECT_LT(child->x(), 0);
  find<QWidget>(character, "txtAge").setFocus();
  EXPECT_EQ(child->pos(), QPoint(0, 0));
  find<QWidget>(character, "cmdClose").setFocus();
  mainWindow().resize(1200, 700);
  EXPECT_EQ(child->pos(), QPoint(0, 0));
}

TEST_F(MainWindows, WhatWasMaximisedIsSoAgain) {
  start("12000", "12000");
  EXPECT_TRUE(mainWindow().isMaximized());
}

TEST_F(MainWindows, EveryCascadedWindowCanBeClosed) {
  start();
  for (int i = 0; i < 12; ++i) newCharacter();
  mainWindow().resize(1300, 700);
  menu("mnuWindowCascade");
  auto* area = mainWindow().area().viewport();
  for (auto* child : mainWindow().area().subWindowList()) {
    const QWidget* seen = area->childAt(child->geometry().topRight() + QPoint(-10, 10));
    EXPECT_TRUE(seen == child || child->isAncestorOf(seen)) << child->y();
  }
}

TEST_F(MainWindows, AMaximisedChildLeavesTheMenuBarToTheActiveOne) {
  start();
  auto& character = newCharacter();
  const auto sheet = std::make_shared<frmFeuille>(globals());
  sheet->Show();
  windows.childOf(*sheet)->showMaximized();
  const auto* buttons = mainWindow().menuBar()->cornerWidget();
  ASSERT_TRUE(buttons && buttons->isVisible());
  perform([&] { user.activate(character); });
  EXPECT_FALSE(buttons->isVisible());
  perform([&] { user.activate(*sheet); });
  EXPECT_TRUE(buttons->isVisible());
}

TEST_F(MainWindows, CatchUpWithWhatTheyDidNotSee) {
  start();
  auto& left = newCharacter();
  windows.lookAway();
  user.close(left);
  auto& frame = *run.mainWindow();
  user.click(frame.mnuFileNewPJ);
  auto& active = *globals().frmCurrentPerso;
  user.click(frame.mnuHelpContents);
  user.type(active.txtPerso, "Cléo");
  turn();
  EXPECT_EQ(mainWindow().area().subWindowList().size(), 1);
  windows.catchUp();
  turn();
  EXPECT_EQ(unlike(run.desktop(), windows), "");
  EXPECT_EQ(mainWindow().area().subWindowList().size(), 2);
  EXPECT_EQ(windowList(), "&1 (sans nom)*\n&2 Help File\n");
  EXPECT_EQ(QApplication::focusWidget(), &find<QLineEdit>(active, "txtPerso"));
  EXPECT_EQ(find<QLineEdit>(active, "txtPerso").cursorPosition(), 4);
  windows.lookAway();
  bool hasClosed = false;
  windows.closed = [&] { hasClosed = true; };
  user.close(frame);
  windows.catchUp();
  EXPECT_TRUE(hasClosed);
}

TEST_F(MainWindows, GoOnInADialogBehindWhatWasTypedThere) {
  Session session(world(), [](const std::string&) {});
  Windows own(session.run().desktop(), session.user());
  dialogs.setWindows(own);
  session.run().Main();
  own.lookAway();
  session.arrived = [&] { own.catchUp(); };
  onceOpen<DialogWindow>([](DialogWindow& dialog) {
    const auto* description = dialog.findChild<QPlainTextEdit*>("txtContactDescro");
    EXPECT_EQ(dialog.focusWidget(), description);
    EXPECT_EQ(description->textCursor().position(), 5);
    QTest::keyClick(&dialog, Qt::Key_Escape);
  });
  const Script past = parseScript("past",
                                  "click mnuFileNewPJ\npick SSTabPerso 2\nclick cmdContactNew\n"
                                  "type txtContactName \"Mado\"\ntype txtContactDescro \"Tient\"\n");
  session.playPast(past);
  EXPECT_FALSE(session.run().desktop().modal());
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
