#include "screen/list_box_view.h"

#include <QMouseEvent>
#include <QSignalBlocker>

#include "canvas/qt_text.h"

namespace orvane {

ListBoxView::ListBoxView(ListBox& box, QListWidget& list, FormView& form)
    : View(box, list, form), box_(box), list_(list) {
  list_.setSelectionMode(QAbstractItemView::SingleSelection);
  list_.setEditTriggers(QAbstractItemView::NoEditTriggers);
  list_.setTabKeyNavigation(false);
  onEvent(list_, [this](QEvent& event) { return stepPressed(event); });
  onEvent(*list_.viewport(), [this](QEvent& event) { return pressed(event); });
  // With the mouse seen to above, only keys and screen readers move the current row.
  on(&list_, &QListWidget::currentRowChanged, [this](int row) { pick(row); });
}

bool ListBoxView::pressed(QEvent& event) {
  if (event.type() != QEvent::MouseButtonPress && event.type() != QEvent::MouseButtonDblClick) return false;
  const auto& mouse = static_cast<QMouseEvent&>(event);
  if (mouse.button() == Qt::LeftButton) pick(list_.indexAt(mouse.position().toPoint()).row());
  return true;
}

void ListBoxView::pick(int index) {
  if (index >= 0) act([&](User& user) { user.pick(box_, index); });
}

void ListBoxView::showEntries() {
  while (list_.count() > box_.ListCount()) delete list_.takeItem(list_.count() - 1);
  while (list_.count() < box_.ListCount()) list_.addItem(QString());
  for (int i = 0; i < box_.ListCount(); ++i)
    if (const QString text = toQt(box_.List(i)); list_.item(i)->text() != text) list_.item(i)->setText(text);
}

void ListBoxView::show() {
  const QSignalBlocker silent(list_);
  showEntries();
  if (list_.currentRow() != box_.ListIndex()) list_.setCurrentRow(box_.ListIndex());
}

}  // namespace orvane
