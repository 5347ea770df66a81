#include <QAbstractItemView>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QRadioButton>
#include <QScrollBar>
#include <QTabBar>
#include <QTabWidget>

#include "tests/screen/view_fixture.h"

namespace orvane::test {
namespace {

class ChoiceViews : public ViewFixture {
 protected:
  // Opens the list and takes an entry of it.
  static void choose(QComboBox& combo, int index) {
    combo.showPopup();
    combo.view()->setCurrentIndex(combo.model()->index(index, 0));
    QTest::keyClick(combo.view(), Qt::Key_Return);
  }
  void clickTab(int tab) {
    auto& bar = *find<QTabWidget>("tabs").tabBar();
    click(bar, bar.tabRect(tab).center());
  }
  // Beside the caption a button does not feel the mouse.
  void clickOption(const char* name) {
    auto& button = find<QRadioButton>(name);
    click(button, {8, button.height() / 2});
  }
  bool isChecked(const char* name) { return find<QRadioButton>(name).isChecked(); }
};

TEST_F(ChoiceViews, AnEntryAddedToAnEmptyComboSelectsNothing) {
  auto& combo = find<QComboBox>("cmbList");
  form->cmbList.Clear();
  form->cmbList.AddItem("Seul");
  turn();
  EXPECT_EQ(combo.count(), 1);
  EXPECT_EQ(combo.currentIndex(), -1);
  form->cmbList.setListIndex(0);
  turn();
  form->cmbList.Clear();
  form->cmbList.AddItem("Un");
  form->cmbList.AddItem("Deux");
  form->cmbList.setListIndex(1);
  EXPECT_EQ(eventsAfter([] {}), "");
  EXPECT_EQ(combo.currentIndex(), 1);
}

TEST_F(ChoiceViews, PickingAnEntryClicksAlsoWhereItIsSelected) {
  auto& combo = find<QComboBox>("cmbList");
  EXPECT_EQ(eventsAfter([&] { choose(combo, 1); }), "+cmbList cmbList Click Bêta");
  EXPECT_EQ(eventsAfter([&] { choose(combo, 1); }), "cmbList Click Bêta");
  EXPECT_EQ(eventsAfter([&] { QTest::keyClick(&combo, Qt::Key_Up); }), "cmbList Click Alpha");
}

TEST_F(ChoiceViews, TheWheelPicksOnlyWhereTheFocusIs) {
  auto& combo = find<QComboBox>("cmbList");
  form->cmbList.setListIndex(0);
  turn();
  QWheelEvent wheel(QPointF(5, 5), combo.mapToGlobal(QPointF(5, 5)), {}, {0, -120}, Qt::NoButton, Qt::NoModifier,
                    Qt::NoScrollPhase, false);
  const auto roll = [&] { QApplication::sendEvent(&combo, &wheel); };
  EXPECT_EQ(eventsAfter(roll), "");
  combo.setFocus();
  EXPECT_EQ(eventsAfter(roll), "+cmbList cmbList Click Bêta");
}

TEST_F(ChoiceViews, ATypedEntryIsSelectedAndNeverClicked) {
  auto& combo = find<QComboBox>("cmbEdit");
  combo.setFocus();
  form->events();
  EXPECT_EQ(eventsAfter([&] { QTest::keyClicks(combo.lineEdit(), "Mot"); }),
            "+cmbEdit cmbEdit Change M cmbEdit Change Mo cmbEdit Change Mot");
  EXPECT_EQ(combo.currentIndex(), -1);
  EXPECT_EQ(eventsAfter([&] { QTest::keyClicks(combo.lineEdit(), "o"); }), "cmbEdit Change Moto");
  EXPECT_EQ(combo.currentIndex(), 1);
  EXPECT_EQ(combo.lineEdit()->cursorPosition(), 4);
  EXPECT_EQ(eventsAfter([&] {
              QTest::keyClick(combo.lineEdit(), Qt::Key_Return);
              QTest::keyClick(&combo, Qt::Key_Tab);
            }),
            "-cmbEdit +lstNames");
  EXPECT_EQ(combo.count(), 2);
}

TEST_F(ChoiceViews, AListBoxClicksForMouseAndKeysAndNotForCode) {
  auto& list = find<QListWidget>("lstNames");
  for (const auto* name : {"Zoé", "Anne", "Émile"}) form->lstNames.AddItem(name);
  EXPECT_EQ(eventsAfter([] {}), "");
  EXPECT_EQ(list.currentRow(), -1);
  const auto clickRow = [&](int row) { click(*list.viewport(), list.visualItemRect(list.item(row)).center()); };
  EXPECT_EQ(eventsAfter([&] { clickRow(1); }), "+lstNames lstNames Émile");
  EXPECT_EQ(eventsAfter([&] { clickRow(1); }), "lstNames Émile");
  EXPECT_EQ(eventsAfter([&] { QTest::keyClick(&list, Qt::Key_Down); }), "lstNames Zoé");
  EXPECT_EQ(eventsAfter([&] { form->lstNames.RemoveItem(2); }), "");
  EXPECT_EQ(list.currentRow(), -1);
  EXPECT_EQ(list.count(), 2);
}

TEST_F(ChoiceViews, TheGroupSpansTwoTabsAndMayBeEmpty) {
  EXPECT_EQ(eventsAfter([&] { clickOption("optFirst_1"); }), "+optFirst(1) B");
  EXPECT_EQ(eventsAfter([&] { clickOption("optFirst_1"); }), "");
  EXPECT_TRUE(isChecked("optFirst_1"));
  form->optSecond(0).setValue(true);
  turn();
  EXPECT_FALSE(isChecked("optFirst_1"));
  EXPECT_TRUE(isChecked("optSecond_0"));
  form->optSecond(0).setValue(false);
  turn();
  EXPECT_FALSE(isChecked("optSecond_0"));
}

TEST_F(ChoiceViews, ArrowsSelectTheNextOptionOfTheRow) {
  form->optFirst(1).setEnabled(false);
  turn();
  auto& first = find<QRadioButton>("optFirst_0");
  clickOption("optFirst_0");
  EXPECT_EQ(eventsAfter([&] { QTest::keyClick(&first, Qt::Key_Down); }), "-optFirst(0) +optFirst(2) C");
  EXPECT_EQ(eventsAfter([&] { QTest::keyClick(QApplication::focusWidget(), Qt::Key_Right); }),
            "-optFirst(2) +optFirst(0) A");
  EXPECT_EQ(eventsAfter([&] { QTest::keyClick(QApplication::focusWidget(), Qt::Key_Left); }),
            "-optFirst(0) +optFirst(2) C");
}

TEST_F(ChoiceViews, CheckBoxesLabelsAndScrollBarsActOnce) {
  auto& box = find<QCheckBox>("chkMuta");
  EXPECT_EQ(eventsAfter([&] {
              QTest::mouseClick(&box, Qt::LeftButton, {}, {8, box.height() / 2});
            }),
            "+chkMuta chkMuta 1");
  EXPECT_EQ(eventsAfter([&] { form->chkMuta.setValue(0); }), "chkMuta 0");
  EXPECT_FALSE(box.isChecked());
  EXPECT_EQ(eventsAfter([&] { click(find<QLabel>("lblClick")); }), "lblClick");
  form->HScroll.setMax(3);
  turn();
  auto& bar = find<QScrollBar>("HScroll");
  EXPECT_EQ(eventsAfter([&] { QTest::keyClick(&bar, Qt::Key_End); }), "-chkMuta +HScroll HScroll 3");
  EXPECT_EQ(eventsAfter([&] { form->HScroll.setValue(1); }), "HScroll 1");
  EXPECT_EQ(bar.value(), 1);
  // A picture that fits has no way to go.
  EXPECT_EQ(eventsAfter([&] { form->HScroll.setMax(-2); }), "");
}

TEST_F(ChoiceViews, OnlyTheControlChangesTheTab) {
  auto& widget = find<QTabWidget>("tabs");
  form->tabs.setTabEnabled(0, false);
  EXPECT_EQ(eventsAfter([] {}), "");
  EXPECT_EQ(widget.currentIndex(), 0);
  EXPECT_TRUE(find<QRadioButton>("optFirst_0").isEnabled());
  form->tabs.setTabEnabled(1, false);
  turn();
  EXPECT_EQ(eventsAfter([&] { clickTab(1); }), "+tabs");
  EXPECT_EQ(widget.currentIndex(), 0);
  EXPECT_EQ(eventsAfter([&] { clickTab(2); }), "tabs 0>2");
  EXPECT_EQ(widget.currentIndex(), 2);
  EXPECT_EQ(eventsAfter([&] { clickTab(2); }), "tabs 2>2");
  // A handler that goes on elsewhere has the last word.
  form->tabs.setTabEnabled(0, true);
  form->tabs.Click.handle([this](std::int16_t) { form->tabs.setTab(2); });
  turn();
  clickTab(0);
  turn();
  EXPECT_EQ(widget.currentIndex(), 2);
}

TEST_F(ChoiceViews, KeysGoFromOpenTabToOpenTab) {
  form->tabs.setTabVisible(1, false);
  turn();
  auto& bar = *find<QTabWidget>("tabs").tabBar();
  bar.setFocus();
  form->events();
  EXPECT_EQ(eventsAfter([&] { QTest::keyClick(&bar, Qt::Key_Right); }), "+tabs tabs 0>2");
  EXPECT_EQ(eventsAfter([&] { QTest::keyClick(&window, Qt::Key_PageUp, Qt::ControlModifier); }), "tabs 2>0");
  EXPECT_EQ(eventsAfter([&] { QTest::keyClick(&window, Qt::Key_PageUp, Qt::ControlModifier); }), "");
  EXPECT_EQ(eventsAfter([&] { QTest::keyClick(&window, Qt::Key_PageDown, Qt::ControlModifier); }), "tabs 0>2");
}

}  // namespace
}  // namespace orvane::test
