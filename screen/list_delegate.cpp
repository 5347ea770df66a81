#include "screen/list_delegate.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>

#include "screen/line_edits.h"
#include "screen/readable_colours.h"

namespace orvane {
namespace {

void setInAllGroups(QPalette& palette, QPalette::ColorRole role, const QColor& colour) {
  for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled})
    palette.setColor(group, role, colour);
}

void colourText(QPalette& palette, Colour colour, const QColor& ground) {
  const QColor wanted = screenColour(colour, palette);
  setInAllGroups(palette, QPalette::Text, readable(wanted, ground));
  setInAllGroups(palette, QPalette::HighlightedText, readable(wanted, palette.color(QPalette::Highlight)));
}

// Two lists may stand side by side: the arrow buttons act on the one without check boxes, unless the keyboard is in the
// other.
bool isActive(const QWidget* list, bool hasCheckBoxes) {
  const auto* focus = qobject_cast<const QAbstractItemView*>(QApplication::focusWidget());
  return hasCheckBoxes ? focus == list : !focus || focus == list;
}

void pale(QPalette& palette) {
  const QColor ground = blend(palette.color(QPalette::Base), palette.color(QPalette::Text), 0.2);
  setInAllGroups(palette, QPalette::Highlight, ground);
  setInAllGroups(palette, QPalette::HighlightedText, readable(palette.color(QPalette::Text), ground));
}

}  // namespace

void ListDelegate::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const {
  QStyledItemDelegate::initStyleOption(option, index);
  if (index.data(stripeRole).toBool()) option->backgroundBrush = option->palette.brush(QPalette::AlternateBase);
  const QVariant colour = index.data(cellColourRole);
  const bool hasCheckBoxes = index.siblingAtColumn(0).data(Qt::CheckStateRole).isValid();
  if (!isActive(option->widget, hasCheckBoxes)) pale(option->palette);
  const auto ground = index.data(stripeRole).toBool() ? QPalette::AlternateBase : QPalette::Base;
  if (colour.isValid())
    colourText(option->palette, static_cast<Colour>(colour.toUInt()), option->palette.color(ground));
}

QWidget* ListDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                                    const QModelIndex& index) const {
  auto* editor = QStyledItemDelegate::createEditor(parent, option, index);
  if (auto* edit = qobject_cast<QLineEdit*>(editor)) {
    edit->setMaxLength(longest_);
    keepToOneLine(*edit);
  }
  return editor;
}

bool ListDelegate::eventFilter(QObject* editor, QEvent* event) {
  if (event->type() == QEvent::KeyPress) {
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (auto* widget = dynamic_cast<QWidget*>(editor); widget && (key == Qt::Key_Tab || key == Qt::Key_Backtab)) {
      emit commitData(widget);
      emit closeEditor(widget, NoHint);
      return true;
    }
  }
  return QStyledItemDelegate::eventFilter(editor, event);
}

void ListDelegate::setModelData(QWidget* editor, QAbstractItemModel*, const QModelIndex&) const {
  if (const auto* edit = dynamic_cast<QLineEdit*>(editor)) typed_(edit->text());
}

}  // namespace orvane
