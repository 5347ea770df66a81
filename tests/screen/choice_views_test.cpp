#include <QAbstractItemView>
#include <QCheckBox>
#include <QComboBox>
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
  EXPECT_EQ(eventsAfter([] {}), "");
  EXPECT_EQ(combo.count(), 1);
  EXPECT_EQ(combo.currentIndex(), -1);
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
  EXPECT_EQ(eventsAfter([&] { QTest::keyClicks(combo.lineEdit(), "Mo"); }),
            "+cmbEdit cmbEdit Change M cmbEdit Change Mo");
  EXPECT_EQ(combo.currentIndex(), -1);
  QTest::keyClicks(combo.lineEdit(), "to");
  turn();
  EXPECT_EQ(combo.currentIndex(), 1);
  EXPECT_EQ(combo.lineEdit()->cursorPosition(), 4);
  EXPECT_EQ(eventsAfter([&] { QTest::keyClick(combo.lineEdit(), Qt::Key_Return); }), "");
  EXPECT_EQ(combo.count(), 2);
}

TEST_F(ChoiceViews, AListBoxClicksForMouseAndKeysAndNotForCode) {
  auto& list = find<QListWidget>("lstNames");
  for (const auto* name : {"Zoé", "Anne", "Émile"}) form->lstNames.AddItem(name);
  EXPECT_EQ(eventsAfter([] {}), "");
  EXPECT_EQ(list.currentRow(), -1);
  const auto clickRow = [&] { click(*list.viewport(), list.visualItemRect(list.item(1)).center()); };
  EXPECT_EQ(eventsAfter(clickRow), "+lstNames lstNames Émile");
  EXPECT_EQ(eventsAfter(clickRow), "lstNames Émile");
  EXPECT_EQ(eventsAfter([&] { QTest::keyClick(&list, Qt::Key_Down); }), "lstNames Zoé");
  EXPECT_EQ(eventsAfter([&] { form->lstNames.RemoveItem(2); }), "");
  EXPECT_EQ(list.currentRow(), -1);
}

TEST_F(ChoiceViews, TheGroupSpansTwoTabsAndMayBeEmpty) {
  EXPECT_EQ(eventsAfter([&] { clickOption("optFirst_1"); }), "+optFirst(1) B");
  EXPECT_EQ(eventsAfter([&] { clickOption("optFirst_1"); }), "");
  EXPECT_TRUE(isChecked("optFirst_1"));
  for (const bool value : {true, false}) {
    form->optSecond(0).setValue(value);
    turn();
    EXPECT_FALSE(isChecked("optFirst_1"));
    EXPECT_EQ(isChecked("optSecond_0"), value);
  }
}

TEST_F(ChoiceViews, ArrowsSelectTheNextOptionOfTheRow) {
  form->optFirst(1).setEnabled(false);
  turn();
  clickOption("optFirst_0");
  const auto after = [this](Qt::Key key) {
    return eventsAfter([key] { QTest::keyClick(QApplication::focusWidget(), key); });
  };
  EXPECT_EQ(after(Qt::Key_Down), "-optFirst(0) +optFirst(2) C");
  EXPECT_EQ(after(Qt::Key_Right), "-optFirst(2) +optFirst(0) A");
  EXPECT_EQ(after(Qt::Key_Left), "-optFirst(0) +optFirst(2) C");
}

TEST_F(ChoiceViews, WritesOfCodeActOnce) {
  EXPECT_EQ(eventsAfter([&] { form->chkMuta.setValue(1); }), "chkMuta 1");
  EXPECT_TRUE(find<QCheckBox>("chkMuta").isChecked());
  form->HScroll.setMax(3);
  turn();
  auto& bar = find<QScrollBar>("HScroll");
  EXPECT_EQ(eventsAfter([&] { QTest::keyClick(&bar, Qt::Key_End); }), "+HScroll HScroll 3");
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
  clickTab(2);
  EXPECT_EQ(eventsAfter([&] { clickTab(2); }), "tabs 2>2");
  // A handler that goes on elsewhere has the last word.
  form->tabs.Click.handle([this](std::int16_t) { form->tabs.setTab(2); });
  clickTab(1);
  turn();
  EXPECT_EQ(widget.currentIndex(), 2);
}

TEST_F(ChoiceViews, KeysGoFromOpenTabToOpenTab) {
  auto& bar = *find<QTabWidget>("tabs").tabBar();
  clickTab(0);
  const auto jump = [&](Qt::Key key) {
    return eventsAfter([&] { QTest::keyClick(&window, key, Qt::ControlModifier); });
  };
  for (const auto close : {&TabControl::setTabVisible, &TabControl::setTabEnabled}) {
    (form->tabs.*close)(1, false);
    turn();
    EXPECT_EQ(eventsAfter([&] { QTest::keyClick(&bar, Qt::Key_Right); }), "tabs 0>2");
    EXPECT_EQ(jump(Qt::Key_PageDown), "");
    EXPECT_EQ(jump(Qt::Key_PageUp), "tabs 2>0");
    EXPECT_EQ(jump(Qt::Key_PageUp), "");
    form->tabs.setTabVisible(1, true);
  }
}

}  // namespace
}  // namespace orvane::test
