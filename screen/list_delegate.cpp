#include "screen/list_delegate.h"

#include <QKeyEvent>
#include <QLineEdit>

#include "screen/line_edits.h"
#include "screen/readable_colours.h"

namespace orvane {
namespace {

void colourText(QPalette& palette, Colour colour) {
  for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
    const QColor wanted = screenColour(colour, palette);
    palette.setColor(group, QPalette::Text, readable(wanted, palette.color(group, QPalette::Base)));
    palette.setColor(group, QPalette::HighlightedText, readable(wanted, palette.color(group, QPalette::Highlight)));
  }
}

}  // namespace

void ListDelegate::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const {
  QStyledItemDelegate::initStyleOption(option, index);
  const QVariant colour = index.data(cellColourRole);
  if (colour.isValid()) colourText(option->palette, static_cast<Colour>(colour.toUInt()));
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
