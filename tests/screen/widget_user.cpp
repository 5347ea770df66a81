#include "tests/screen/widget_user.h"

#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QInputMethodEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>
#include <QTreeWidget>

#include "canvas/qt_text.h"
#include "surface/combo_box.h"
#include "surface/list_box.h"
#include "surface/list_view.h"
#include "surface/menu_item.h"
#include "surface/tab_control.h"

namespace orvane::test {
namespace {

void turn() {
  QCoreApplication::processEvents();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void press(QWidget& widget, QPoint where) { QTest::mouseClick(&widget, Qt::LeftButton, Qt::NoModifier, where); }

// Replaces the whole text at once, as pasting and input methods do: key by key would change it once for each.
void replaceText(QWidget& widget, const QString& text) {
  widget.setFocus(Qt::MouseFocusReason);
  QTest::keyClick(&widget, Qt::Key_A, Qt::ControlModifier);
  if (text.isEmpty()) return QTest::keyClick(&widget, Qt::Key_Delete);
  QInputMethodEvent typed;
  typed.setCommitString(text);
  QApplication::sendEvent(&widget, &typed);
}

int position(EntryList& list, const Entry& entry) {
  return entryPosition(list, entry, 0, list.ListCount(), [&](int i) { return list.List(i); });
}

int position(TabControl& tabs, const Entry& entry) {
  return entryPosition(tabs, entry, 0, tabs.Tabs(), [&](int i) { return tabs.TabCaption(i); });
}

int position(ListView& list, const Entry& row) {
  return entryPosition(list, row, 1, list.Count(), [&](int i) { return list.ListItems(i)->Text(); }) - 1;
}

QRect shownRow(QTreeWidget& tree, int row) {
  tree.scrollToItem(tree.topLevelItem(row));
  return tree.visualItemRect(tree.topLevelItem(row));
}

// Beside the box that is checked.
QPoint nameAt(QTreeWidget& tree, int row) {
  const QRect shown = shownRow(tree, row);
  return {shown.left() + 40, shown.center().y()};
}

QPoint checkBoxAt(QTreeWidget& tree, int row) {
  const QRect shown = shownRow(tree, row);
  return {shown.left() + 10, shown.center().y()};
}

QPoint feelingPoint(const QWidget& widget) {
  // Option buttons and check boxes do not feel the mouse beside their caption.
  return {8, widget.height() / 2};
}

void choose(QComboBox& combo, int index) {
  combo.setFocus(Qt::MouseFocusReason);
  combo.showPopup();
  combo.view()->setCurrentIndex(combo.model()->index(index, 0));
  QTest::keyClick(combo.view(), Qt::Key_Return);
}

}  // namespace

WidgetUser::WidgetUser(Desktop& desktop, ScreenDialogs& dialogs) : User(desktop), desktop_(desktop), windows_(desktop) {
  dialogs.setWindows(windows_);
}

WidgetUser::~WidgetUser() { turn(); }

QWidget* WidgetUser::windowOf(const Form& form) const {
  if (form.role() == Form::Role::Frame) return windows_.mainWindow();
  if (QWidget* child = windows_.childOf(form)) return child;
  return windows_.dialogOf(form);
}

void WidgetUser::settle(Form& form) {
  turn();
  QWidget* window = windowOf(form)->window();
  window->activateWindow();
  turn();
}

void WidgetUser::check(Control& control) {
  settle(control.form());
  try {
    requireReachable(control);
  } catch (const Refusal&) {
    const QWidget* shown = windowOf(control.form())->findChild<QWidget*>(widgetName(control));
    const bool blocked = desktop_.modal() && desktop_.modal() != &control.form();
    EXPECT_TRUE(blocked || !shown || !shown->isVisible() || !shown->isEnabled())
        << control.id() << " is refused, yet can be used on the screen";
    throw;
  }
  if (control.kind() == "menu") return;
  const QWidget* shown = windowOf(control.form())->findChild<QWidget*>(widgetName(control));
  EXPECT_TRUE(shown && shown->isVisible() && shown->isEnabled()) << control.id() << " cannot be used on the screen";
}

template <class Widget>
Widget& WidgetUser::widget(Control& control) {
  return *windowOf(control.form())->findChild<Widget*>(widgetName(control));
}

void WidgetUser::click(Control& control) {
  check(control);
  control.prepareClick();
  if (control.kind() == "menu") {
    windows_.mainWindow()->findChild<QAction*>(toQt(control.Name()))->trigger();
  } else {
    auto& shown = widget<QWidget>(control);
    press(shown, feelingPoint(shown));
  }
  turn();
}

void WidgetUser::type(Control& control, std::string text) {
  check(control);
  control.prepareType(text);
  auto* combo = qobject_cast<QComboBox*>(&widget<QWidget>(control));
  replaceText(combo ? *combo->lineEdit() : widget<QWidget>(control), shownLines(text));
  turn();
}

void WidgetUser::pick(Control& control, const Entry& entry) {
  check(control);
  control.preparePick(entry);
  if (auto* combo = dynamic_cast<ComboBox*>(&control)) {
    choose(widget<QComboBox>(control), position(*combo, entry));
  } else if (auto* list = dynamic_cast<ListBox*>(&control)) {
    auto& shown = widget<QListWidget>(control);
    auto* item = shown.item(position(*list, entry));
    shown.scrollToItem(item);
    press(*shown.viewport(), shown.visualItemRect(item).center());
  } else if (auto* tabs = dynamic_cast<TabControl*>(&control)) {
    QTabBar& bar = *widget<QTabWidget>(control).tabBar();
    press(bar, bar.tabRect(position(*tabs, entry)).center());
  }
  turn();
}

void WidgetUser::row(Control& control, const Entry& row) {
  check(control);
  control.prepareRow(row);
  auto& tree = widget<QTreeWidget>(control);
  press(*tree.viewport(), nameAt(tree, position(static_cast<ListView&>(control), row)));
  turn();
}

void WidgetUser::toggle(Control& control, const Entry& row) {
  check(control);
  control.prepareToggle(row);
  auto& tree = widget<QTreeWidget>(control);
  press(*tree.viewport(), checkBoxAt(tree, position(static_cast<ListView&>(control), row)));
  turn();
}

void WidgetUser::edit(Control& control, const Entry& row, std::string text) {
  check(control);
  control.prepareEdit(row, text);
  auto& tree = widget<QTreeWidget>(control);
  const QPoint name = nameAt(tree, position(static_cast<ListView&>(control), row));
  press(*tree.viewport(), name);
  QTest::mouseDClick(tree.viewport(), Qt::LeftButton, Qt::NoModifier, name);
  if (auto* editor = tree.viewport()->findChild<QLineEdit*>()) {
    replaceText(*editor, shownLines(text));
    QTest::keyClick(editor, Qt::Key_Return);
  }
  turn();
}

void WidgetUser::scroll(Control& control, int value) {
  check(control);
  control.prepareScroll(value);
  auto& bar = widget<QScrollBar>(control);
  bar.setFocus(Qt::MouseFocusReason);
  bar.setValue(value);
  turn();
}

void WidgetUser::focus(Control& control) {
  check(control);
  if (!control.takesFocus()) return User::focus(control);
  auto* tabs = dynamic_cast<TabControl*>(&control);
  QWidget& shown = tabs ? *widget<QTabWidget>(control).tabBar() : widget<QWidget>(control);
  // A window gives the keyboard to its first widget without telling the form; here the user comes to it.
  shown.clearFocus();
  shown.setFocus(Qt::TabFocusReason);
  EXPECT_TRUE(shown.hasFocus()) << control.id();
  turn();
}

void WidgetUser::activate(Form& form) {
  requireOpen(form);
  if (form.role() != Form::Role::Child) return User::activate(form);
  settle(form);
  windows_.mainWindow()->area().setActiveSubWindow(windows_.childOf(form));
  turn();
}

void WidgetUser::close(Form& form) {
  requireOpen(form);
  settle(form);
  windowOf(form)->close();
  turn();
}

}  // namespace orvane::test
