#include <QAbstractItemView>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QToolButton>

#include "surface/failure.h"
#include "tests/screen/view_fixture.h"

namespace orvane::test {
namespace {

// Gestures, and the events that they give; what is then shown is compared after each.
using Views = ViewFixture;

TEST_F(Views, Texts) {
  form->on["text=axbc"] = [](Sample& own) { own.text.setText("axb"); };
  auto& text = find<QLineEdit>("text");
  play({{[&] {
           form->text.setText("un");
           form->text.setText("deux");
           EXPECT_EQ(text.text(), "") << "shown once for a turn";
         },
         "text=un text=deux"},
        {[&] { replaceText(text, "abc"); }, "+text text=abc"},
        // A handler cuts what was typed, and the cursor stays.
        {[&] { text.setCursorPosition(1); }, ""},
        {typed("text", "x"), "text=axbc text=axb"},
        {[&] { EXPECT_EQ(text.cursorPosition(), 2); }, ""},
        // The user was faster than the screen.
        {[&] {
           form->text.setEnabled(false);
           QTest::keyClicks(&text, "y");
         },
         ""},
        {clicked("locked"), "-text +locked"},
        {typed("locked", "x"), ""},
        {[&] { QTest::keyClicks(&find("lines"), "a\rb"); }, "-locked +lines lines=a lines=a\r\n lines=a\r\nb"},
        {[&] { EXPECT_EQ(find<QPlainTextEdit>("lines").textCursor().position(), 3); }, ""},
        {pressed(Qt::Key_Left, "lines"), ""},
        {typed("lines", "c"), "lines=a\r\ncb"},
        {[&] { EXPECT_EQ(find<QPlainTextEdit>("lines").textCursor().position(), 3); }, ""},
        {[&] { find<QPlainTextEdit>("lines").insertPlainText(QChar(QChar::Nbsp)); }, "lines=a\r\nc\u00A0b"},
        {pressed(Qt::Key_Tab, "lines"), "-lines +list"},
        {[&] { form->lines.setText("un\r\n\r\ntrois"); }, "lines=un\r\n\r\ntrois"},
        // Nothing is selected where Tab comes to, and what is pasted keeps to the line.
        {[&] { form->text.setEnabled(true); }, ""},
        {[&] { text.setFocus(Qt::TabFocusReason); }, "-list +text"},
        {[&] { text.insert("\r\na\tb\x1b\n"); }, "text=axb a b "},
        {[&] { EXPECT_EQ(text.cursorPosition(), 8); }, ""},
        // Nor where a window begins.
        {[&] { text.clearFocus(); }, ""},
        {[&] { form->text.setText("quatre"); }, "text=quatre"},
        {[&] { text.setFocus(Qt::ActiveWindowFocusReason); }, ""},
        {[&] { EXPECT_EQ(text.cursorPosition(), 6); }, ""}});
}

TEST_F(Views, Combos) {
  auto& list = find<QComboBox>("list");
  play({{[&] { roll(list); }, ""},  // the wheel does not even come to it
        {[&] { list.setFocus(Qt::TabFocusReason); }, "+list"},
        {[&] { roll(list); }, ""},  // and picks nothing
        {[&] { choose(list, 1); }, "list:deux"},
        {[&] { choose(list, 1); }, "list:deux"},
        {pressed(Qt::Key_Up, "list"), "list:un"},
        {[&] { form->list.Clear(); }, ""},
        {[&] { form->list.AddItem("Seul"); }, ""},
        {[&] { form->list.AddItem("Autre"); }, ""},
        {[&] { form->list.setVisible(false); }, ""},
        {[&] { form->list.setVisible(true); }, ""}});
}

TEST_F(Views, TypedEntriesAreSelectedAndNeverClicked) {
  auto& combo = find<QComboBox>("combo");
  auto& edit = *combo.lineEdit();
  play({{[&] { combo.setFocus(Qt::TabFocusReason); }, "+combo"},
        {[&] { QTest::keyClicks(&edit, "Do"); }, "combo=D combo=Do"},
        {[&] { QTest::keyClicks(&edit, "cks"); }, "combo=Doc combo=Dock combo=Docks"},
        {[&] { find("text").setFocus(Qt::TabFocusReason); }, "-combo +text"},
        {[&] { combo.setFocus(Qt::TabFocusReason); }, "-text +combo"},
        {[&] { QTest::keyClicks(&edit, "!"); }, "combo=Docks!"},
        {[&] { QTest::keyClick(&edit, Qt::Key_Backspace); }, "combo=Docks"},
        {[&] { EXPECT_EQ(edit.cursorPosition(), 5); }, ""},
        {[&] { QTest::keyClick(&edit, Qt::Key_Return); }, ""},
        {[&] { edit.setCursorPosition(1); }, ""},
        {[&] { QTest::keyClicks(&edit, "x"); }, "combo=Dxocks"},
        {[&] { EXPECT_EQ(edit.cursorPosition(), 2); }, ""},
        {[&] { choose(combo, 0); }, "combo:Port"},
        {[&] { form->combo.setListIndex(1); }, "combo:Docks"}});
}

TEST_F(Views, ListBoxes) {
  auto& names = find<QListWidget>("names");
  for (const auto* name : {"Zoé", "Anne", "Émile"}) form->names.AddItem(name);
  play(
      {{nothing(), ""},
       {[&] { clickEntry(names, 1); }, "+names names:Émile"},
       {[&] { clickEntry(names, 1); }, "names:Émile"},
       {[&] {
          clickAt(*names.viewport(), {5, names.viewport()->height() - 2});
        },
        ""},
       {pressed(Qt::Key_Down, "names"), "names:Zoé"},
       {[&] { QTest::mouseClick(names.viewport(), Qt::RightButton, {}, names.visualItemRect(names.item(0)).center()); },
        ""},
       {[&] { form->names.setList(0, "Ana"); }, ""},
       {[&] { form->names.RemoveItem(2); }, ""},
       {[&] { form->names.setListIndex(0); }, "names:Ana"}});
}

TEST_F(Views, Options) {
  play({{clicked("front_1"), "+front(1) front(1)"},
        {clicked("front_1"), ""},
        {[&] { form->back(0).setValue(true); }, "back(0)"},
        {[&] { form->back(0).setValue(false); }, ""},
        {[&] { form->front(1).setEnabled(false); }, ""},
        {clicked("front_0"), "-front(1) +front(0) front(0)"},
        // Arrows stay in the row, and pass what is closed.
        {pressed(Qt::Key_Down), "-front(0) +front(2) front(2)"},
        {pressed(Qt::Key_Right), "-front(2) +front(0) front(0)"},
        {pressed(Qt::Key_Left), "-front(0) +front(2) front(2)"},
        {pressed(Qt::Key_Up), "-front(2) +front(0) front(0)"},
        {clicked("framed_1"), "-front(0) +framed(1) framed(1)"},
        {pressed(Qt::Key_Space), ""}});
}

TEST_F(Views, CheckBoxesBarsAndLabels) {
  auto& bar = find<QScrollBar>("bar");
  auto& label = find<QLabel>("label");
  play({{clicked("check"), "+check check:1"},
        {pressed(Qt::Key_Space), "check:0"},
        {[&] { form->check.setValue(1); }, "check:1"},
        {[&] { form->bar.setMax(30); }, ""},
        {[&] { QTest::keyClick(&bar, Qt::Key_End); }, "-check +bar bar=30"},
        {[&] { form->bar.setValue(1); }, "bar=1"},
        {pressed(Qt::Key_Home, "bar"), "bar=0"},
        {[&] { form->bar.setMax(-2); }, ""},  // a picture that fits has no way to go
        {clicked("label"), "label"},
        {[&] { label.setFocusPolicy(Qt::StrongFocus); }, ""},
        {pressed(Qt::Key_Space, "label"), "label"},
        {pressed(Qt::Key_A, "label"), ""},
        {[&] { form->label.setCaption("<b>un</b>\r\ndeux"); }, ""},
        {[&] { QTest::mouseClick(&label, Qt::RightButton); }, ""}});
}

TEST_F(Views, Buttons) {
  auto& arrow = find<QToolButton>("arrow");
  play({{clicked("button"), "+button button"},
        {pressed(Qt::Key_Return), "button"},
        {pressed(Qt::Key_Enter), "button"},
        {pressed(Qt::Key_A), ""},
        {[&] { find<QPushButton>("other").animateClick(); }, ""}});
  // A mnemonic presses a button without bringing the keyboard there; the form's focus moves all the same.
  EXPECT_TRUE(QTest::qWaitFor([&] { return log == "-button +other other"; })) << log;
  EXPECT_FALSE(find<QPushButton>("button").autoRepeat());
  // An arrow goes on stepping as long as it is held.
  EXPECT_FALSE(arrow.icon().isNull());
  arrow.setAutoRepeatDelay(1);
  arrow.setAutoRepeatInterval(1);
  events();
  QTest::mousePress(&arrow, Qt::LeftButton);
  EXPECT_TRUE(QTest::qWaitFor([&] { return log.starts_with("-other +arrow arrow arrow arrow"); })) << log;
  QTest::mouseRelease(&arrow, Qt::LeftButton);
}

TEST_F(Views, Tabs) {
  auto& tabs = find<QTabWidget>("tabs");
  const auto jump = [this](Qt::Key key) { return pressed(key, "text", Qt::ControlModifier); };
  const auto right = [&] { QTest::keyClick(tabs.tabBar(), Qt::Key_Right); };
  const auto left = [&] { QTest::keyClick(tabs.tabBar(), Qt::Key_Left); };
  play({{[&] { clickTab(tabs, 2); }, "+tabs tabs:0>2"},
        {[&] { clickTab(tabs, 2); }, "tabs:2>2"},
        {[&] { roll(*tabs.tabBar()); }, ""},
        {[&] { form->tabs.setTab(0); }, "tabs:2>0"},
        {[&] { form->tabs.setTabEnabled(1, false); }, ""},
        {right, "tabs:0>2"},
        {right, ""},
        {jump(Qt::Key_PageDown), ""},
        {jump(Qt::Key_PageUp), "tabs:2>0"},
        {jump(Qt::Key_PageUp), ""},
        {[&] { form->tabs.setTabEnabled(1, true); }, ""},
        {[&] { form->tabs.setTabVisible(1, false); }, ""},
        {right, "tabs:0>2"},
        {left, "tabs:2>0"},
        // What stands on a closed tab that is shown can be used.
        {[&] { form->tabs.setTabEnabled(0, false); }, ""},
        {clicked("front_0"), "-tabs +front(0) front(0)"},
        {[&] { clickTab(tabs, 0); }, "-front(0) +tabs"},
        // A handler that goes on elsewhere has the last word.
        {[&] {
           form->on["tabs:0>2"] = [](Sample& own) { own.tabs.setTab(1); };
           clickTab(tabs, 2);
         },
         "tabs:0>2 tabs:2>1"}});
}

TEST_F(Views, TheFocus) {
  play({{clicked("text"), "+text"},
        {[&] { QTest::keyClick(&window, Qt::Key_Tab); }, "-text +lines"},
        {[&] { QTest::keyClick(&window, Qt::Key_Backtab); }, "-lines +text"},
        // Other windows and popups take it from nobody.
        {[&] {
           QMessageBox box(&window);
           box.open();
           box.activateWindow();
           EXPECT_TRUE(QTest::qWaitForWindowActive(&box));
           box.close();
           window.activateWindow();
           EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
         },
         ""},
        {[&] {
           find<QComboBox>("list").showPopup();
           turn();
           find<QComboBox>("list").hidePopup();
         },
         ""},
        // What is closed or hidden loses it to nobody; the next control that the user enters settles it.
        {[&] { form->text.setVisible(false); }, ""},
        {clicked("button"), "-text +button button"},
        {[&] { form->button.setEnabled(false); }, ""},
        {clicked("locked"), "-button +locked"},
        {clicked("front_0"), "-locked +front(0) front(0)"},
        {[&] { form->tabs.setTab(2); }, "tabs:0>2"}});
}

class Rows : public ViewFixture {
 protected:
  Rows() {
    for (const auto* name : {"Acrobatie", "Bagarre", "Tir"}) form->addRow(name);
    form->rows.ListItems(3)->setBold(true);
    turn();
  }
  Deed row(int row) {
    return [this, row] { clickRow(tree, row); };
  }
  Deed check(int row) {
    return [this, row] { clickCheckBox(tree, row); };
  }
  QLineEdit* editor() { return tree.viewport()->findChild<QLineEdit*>(); }
  // The editor hands its text on in a turn of its own.
  Deed edited(const char* text, Qt::Key end) {
    return [this, text, end] {
      ASSERT_TRUE(editor());
      QTest::keyClicks(editor(), text);
      QTest::keyClick(editor(), end);
      turn();
    };
  }
  bool isInSight(int row) {
    return tree.viewport()->rect().contains(tree.visualItemRect(tree.topLevelItem(row)).center());
  }

  QTreeWidget& tree = find<QTreeWidget>("rows");
};

TEST_F(Rows, AreClickedAndChecked) {
  play({{row(1), "+rows rows:Bagarre"},
        {row(1), "rows:Bagarre"},
        {pressed(Qt::Key_Down, "rows"), "rows:Tir"},
        {pressed(Qt::Key_A, "rows"), "rows:Acrobatie"},
        {check(1), "rows:Bagarre+"},
        {pressed(Qt::Key_Space, "rows"), "rows:Acrobatie+"},
        {pressed(Qt::Key_Space, "rows"), "rows:Acrobatie-"},
        // A handler that refuses leaves no check mark behind.
        {[&] {
           form->on["rows:Tir+"] = [](Sample& own) { own.rows.ListItems(3)->setChecked(false); };
           clickCheckBox(tree, 2);
         },
         "rows:Tir+"},
        {[&] {
           clickAt(*tree.viewport(), {40, tree.viewport()->height() - 2});
         },
         ""},
        // A drag would click each row on its way.
        {[&] {
           const auto middle = [&](int i) { return tree.visualItemRect(tree.topLevelItem(i)).center(); };
           QTest::mousePress(tree.viewport(), Qt::LeftButton, {}, middle(0));
           QTest::mouseMove(tree.viewport(), middle(1));
           QMouseEvent drag(QEvent::MouseMove, middle(1), tree.viewport()->mapToGlobal(middle(1)), Qt::NoButton,
                            Qt::LeftButton, {});
           QApplication::sendEvent(tree.viewport(), &drag);
           QTest::mouseRelease(tree.viewport(), Qt::LeftButton, {}, middle(1));
         },
         "rows:Acrobatie"},
        {[&] { form->rows.ListItems(3)->select(); }, ""},
        {[&] { form->rows.ListItems(2)->ListSubItems(1).setForeColor(Colour::Red); }, ""},
        {[&] { form->rows.ListItems(2)->setForeColor(Colour::Green); }, ""},
        {[&] { form->rows.ListItems(2)->ListSubItems(1).setBold(true); }, ""},
        {[&] { form->rows.Clear(); }, ""}});
}

TEST_F(Rows, AreAsWideAsTheList) {
  EXPECT_TRUE(tree.isColumnHidden(2));
  EXPECT_EQ(tree.columnWidth(0) + tree.columnWidth(1), tree.viewport()->width());
  EXPECT_EQ(tree.columnWidth(1), 30) << "450 twips";
  form->rows.ListItems(2)->setSubItems(1, "10000000000");
  turn();
  const int given = tree.columnWidth(1);
  tree.resizeColumnToContents(1);
  EXPECT_GE(given, tree.columnWidth(1)) << "or what the text needs";
}

TEST_F(Rows, HaveTheirNamesEditedInPlace) {
  const auto key = pressed(Qt::Key_F2, "rows");
  play({{row(1), "+rows rows:Bagarre"},
        {key, "rows:Bagarre rows?"},
        {edited("Chant", Qt::Key_Return), "rows=Chant"},
        {key, "rows:Chant! rows?"},
        {edited("rien", Qt::Key_Escape), ""},
        // Tab ends an edit and opens no other.
        {key, "rows:Chant! rows?"},
        {edited("Luth", Qt::Key_Tab), "rows=Luth"},
        {[&] { EXPECT_FALSE(editor()); }, ""},
        {[&] { doubleClickRow(tree, 1); }, "rows:Luth! rows?"},
        {edited("Orgue", Qt::Key_Return), "rows=Orgue"},
        {[&] { doubleClickRow(tree, 2); }, "rows:Tir rows?"},
        {[&] { EXPECT_FALSE(editor()) << "bold names stay"; }, ""}});
}

// In milliseconds.
struct ClickInterval {
  explicit ClickInterval(int interval) { QApplication::setDoubleClickInterval(interval); }
  ~ClickInterval() { QApplication::setDoubleClickInterval(before); }
  const int before = QApplication::doubleClickInterval();
};

class RowsWithSlowClicks : private ClickInterval, public Rows {
 protected:
  RowsWithSlowClicks() : ClickInterval(250) {}
};

// The second click of a slow pair edits too, but not when it only brings the focus, nor where another window or tab has
// come up since.
TEST_F(RowsWithSlowClicks, AreEditedByTheSecondOne) {
  const auto wait = [] { QTest::qWait(QApplication::doubleClickInterval() + 30); };
  auto dialog = std::make_shared<Sample>(desktop, log, "D", Form::Role::Dialog);
  play({{row(0), "+rows rows:Acrobatie"},
        {wait, ""},
        {row(0), "rows:Acrobatie"},
        {[&] { form->rows.setVisible(false); }, ""},
        {wait, ""},
        {[&] { form->rows.setVisible(true); }, ""},
        {row(0), "rows:Acrobatie"},
        {[&] {
           dialogs.modal = [&](Form&) { wait(); };
           dialog->ShowModal();
         },
         "D/load D/end"},
        {row(0), "rows:Acrobatie"},
        {row(1), "rows:Bagarre"},
        {wait, ""},
        {row(1), "rows:Bagarre"},
        {wait, "rows?"},
        {edited("Chant", Qt::Key_Return), "rows=Chant"}});
}

TEST_F(Rows, KeepTheSelectedOneInSight) {
  for (int i = 0; i < 80; ++i) form->addRow("Rang " + std::to_string(i));
  form->rows.ListItems(70)->select();
  turn();
  EXPECT_TRUE(isInSight(69));
  window.resize(500, 900);
  turn();
  EXPECT_TRUE(isInSight(69));
}

// The windows of the program detach their views when the form is unloaded, as this does.
class Lifetimes : public ViewFixture, public DesktopObserver {
 protected:
  Lifetimes() { desktop.watch(*this); }
  ~Lifetimes() override { desktop.unwatch(*this); }
  void unloaded(Form&) override { view->detach(); }
};

TEST_F(Lifetimes, AHandlerUnloadsItsFormInsideASignalOfItsOwnWidget) {
  form->on["button"] = [](Sample& own) { own.Unload(); };
  const std::weak_ptr<Sample> unloaded = form;
  form.reset();
  click(find("button"));
  ASSERT_FALSE(unloaded.expired());  // its widgets still refer to it
  EXPECT_TRUE(unloaded.lock()->wasUnloaded());
  QTest::keyClicks(&find("text"), "x");
  EXPECT_EQ(unloaded.lock()->text.Text(), "");
  view.reset();
  EXPECT_TRUE(unloaded.expired());
}

TEST_F(Lifetimes, LosingTheFocusUnloadsTheFormBeforeTheClick) {
  form->on["-text"] = [](Sample& own) { own.Unload(); };
  click(find("text"));
  EXPECT_EQ(eventsAfter(clicked("button")), "-text end");
}

TEST_F(Lifetimes, AnEditorOutlivesItsForm) {
  form->addRow("Tir");
  turn();
  auto& tree = find<QTreeWidget>("rows");
  QTest::keyClick(&tree, Qt::Key_F2);
  auto* editor = tree.viewport()->findChild<QLineEdit*>();
  ASSERT_TRUE(editor);
  form->Unload();
  QTest::keyClicks(editor, "x");
  QTest::keyClick(editor, Qt::Key_Return);
  turn();
  EXPECT_EQ(form->rows.ListItems(1)->Text(), "Tir");
}

TEST_F(Lifetimes, AFailureOfAHandlerIsToldAndGoesNoFurther) {
  form->on["button"] = [](Sample&) { throw Failure("Cela n'a pas marché."); };
  click(find("button"));
  EXPECT_EQ(dialogs.log, Log{"failure|Cela n'a pas marché."});
}

TEST_F(Lifetimes, NoActComesInWhileABoxWaits) {
  door.suspend();
  EXPECT_EQ(eventsAfter(clicked("button")), "");
  door.resume();
  EXPECT_EQ(eventsAfter(clicked("button")), "+button button");
}

}  // namespace
}  // namespace orvane::test
