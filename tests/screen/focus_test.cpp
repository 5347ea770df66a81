#include <QComboBox>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>

#include "tests/screen/view_fixture.h"

namespace orvane::test {
namespace {

using Focus = ViewFixture;

TEST_F(Focus, IsLostBeforeTheClickAndMovedByTab) {
  click(find<QLineEdit>("txtLine"));
  EXPECT_EQ(eventsAfter([&] { QTest::keyClick(&window, Qt::Key_Tab); }), "-txtLine +txtLines");
  EXPECT_EQ(eventsAfter([&] { QTest::keyClick(&window, Qt::Key_Backtab); }), "-txtLines +txtLine");
  auto& button = find<QPushButton>("cmdOne");
  EXPECT_EQ(eventsAfter([&] { click(button); }), "-txtLine +cmdOne cmdOne");
  EXPECT_EQ(eventsAfter([&] { QTest::keyClick(&button, Qt::Key_Return); }), "cmdOne");
}

TEST_F(Focus, OtherWindowsAndPopupsTakeItFromNobody) {
  click(find<QLineEdit>("txtLine"));
  EXPECT_EQ(eventsAfter([&] {
              QMessageBox box(&window);
              box.open();
              box.activateWindow();
              EXPECT_TRUE(QTest::qWaitForWindowActive(&box));
              box.close();
              window.activateWindow();
              EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
            }),
            "");
  click(find<QComboBox>("cmbList"));
  EXPECT_EQ(eventsAfter([&] {
              find<QComboBox>("cmbList").showPopup();
              turn();
              find<QComboBox>("cmbList").hidePopup();
            }),
            "");
}

TEST_F(Focus, DisablingOrHidingItsWidgetMovesItNowhere) {
  click(find<QPushButton>("cmdOne"));
  EXPECT_EQ(eventsAfter([&] { form->cmdOne.setEnabled(false); }), "");
  EXPECT_FALSE(find<QPushButton>("cmdOne").hasFocus());
  click(find<QLineEdit>("txtLine"));
  EXPECT_EQ(eventsAfter([&] { form->txtLine.setVisible(false); }), "");
  // The next control that the user enters settles it.
  EXPECT_EQ(eventsAfter([&] { click(find<QLineEdit>("txtFixed")); }), "-txtLine +txtFixed");
  // So does a tab that is changed under the focus.
  click(find<QRadioButton>("optFirst_0"));
  EXPECT_EQ(eventsAfter([&] { form->tabs.setTab(2); }), "tabs 0>2");
}

}  // namespace
}  // namespace orvane::test
