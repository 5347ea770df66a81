#include "tests/screen/hands.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QInputMethodEvent>
#include <QTabBar>
#include <QTest>
#include <QWheelEvent>

namespace orvane::test {
namespace {

QRect shownRow(QTreeWidget& tree, int row) {
  tree.scrollToItem(tree.topLevelItem(row));
  return tree.visualItemRect(tree.topLevelItem(row));
}

QPoint inRow(QTreeWidget& tree, int row, int fromLeft) {
  const QRect shown = shownRow(tree, row);
  return {shown.left() + fromLeft, shown.center().y()};
}

constexpr int checkBox = 10;
constexpr int name = 40;

}  // namespace

void turn() {
  QCoreApplication::processEvents();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void click(QWidget& widget) { clickAt(widget, {8, widget.height() / 2}); }

void clickAt(QWidget& widget, const QPoint& where) {
  QTest::mouseClick(&widget, Qt::LeftButton, Qt::NoModifier, where);
}

void replaceText(QWidget& widget, const QString& text) {
  widget.setFocus(Qt::MouseFocusReason);
  QTest::keyClick(&widget, Qt::Key_A, Qt::ControlModifier);
  if (text.isEmpty()) return QTest::keyClick(&widget, Qt::Key_Delete);
  QInputMethodEvent typed;
  typed.setCommitString(text);
  QApplication::sendEvent(&widget, &typed);
}

void choose(QComboBox& combo, int index) {
  combo.setFocus(Qt::MouseFocusReason);
  combo.showPopup();
  combo.view()->setCurrentIndex(combo.model()->index(index, 0));
  QTest::keyClick(combo.view(), Qt::Key_Return);
}

void clickEntry(QListWidget& list, int index) {
  list.scrollToItem(list.item(index));
  clickAt(*list.viewport(), list.visualItemRect(list.item(index)).center());
}

void clickTab(QTabWidget& tabs, int index) { clickAt(*tabs.tabBar(), tabs.tabBar()->tabRect(index).center()); }

void clickRow(QTreeWidget& tree, int row) { clickAt(*tree.viewport(), inRow(tree, row, name)); }

void clickCheckBox(QTreeWidget& tree, int row) { clickAt(*tree.viewport(), inRow(tree, row, checkBox)); }

void doubleClickRow(QTreeWidget& tree, int row) {
  clickRow(tree, row);
  QTest::mouseDClick(tree.viewport(), Qt::LeftButton, Qt::NoModifier, inRow(tree, row, name));
}

void roll(QWidget& widget) {
  QWheelEvent wheel({5, 5}, widget.mapToGlobal(QPointF(5, 5)), {}, {0, -120}, Qt::NoButton, Qt::NoModifier,
                    Qt::NoScrollPhase, false);
  QSpontaneKeyEvent::setSpontaneous(&wheel);  // others do not reach the widgets around
  qApp->notify(&widget, &wheel);
}

}  // namespace orvane::test
