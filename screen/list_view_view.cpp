#include "screen/list_view_view.h"

#include <algorithm>
#include <charconv>
#include <utility>

#include <QAccessible>
#include <QApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScrollBar>
#include <QSignalBlocker>

#include "canvas/qt_text.h"
#include "screen/form_view.h"
#include "screen/measures.h"
#include "surface/desktop.h"

namespace orvane {
namespace {

bool isHidden(const ListView& list, int column) {
  return list.ColumnHeaders()[static_cast<std::size_t>(column)].width <= 0;
}

bool isList(QWidget* widget) { return qobject_cast<QAbstractItemView*>(widget) != nullptr; }

}  // namespace

ListViewView::ListViewView(ListView& list, QTreeWidget& tree, FormView& form)
    : View(list, tree, form), list_(list), tree_(tree) {
  tree_.setHeaderHidden(true);
  tree_.setRootIsDecorated(false);
  tree_.setUniformRowHeights(true);
  tree_.setAllColumnsShowFocus(true);
  tree_.setEditTriggers(QAbstractItemView::NoEditTriggers);
  tree_.setTabKeyNavigation(false);
  tree_.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  tree_.header()->setStretchLastSection(false);
  tree_.header()->setMinimumSectionSize(0);
  tree_.setItemDelegate(&delegate_);
  on(&delegate_, &QAbstractItemDelegate::closeEditor, [this] { editClosed(); });
  secondClick_.setSingleShot(true);
  secondClick_.setInterval(QApplication::doubleClickInterval());
  on(&secondClick_, &QTimer::timeout, [this] { beginEdit(); });
  onEvent(*tree_.viewport(), [this](QEvent& event) { return viewportEvent(event); });
  onEvent(tree_, [this](QEvent& event) { return treeEvent(event); });
  // Which list the arrows act on can be seen, and is up to where the keyboard is, as far as that is a list.
  on(qApp, &QApplication::focusChanged, [this](QWidget* former, QWidget* now) {
    if (isList(former) || isList(now)) tree_.viewport()->update();
  });
  // With the mouse seen to above, only keys, type-ahead and screen readers move the current row.
  on(&tree_, &QTreeWidget::currentItemChanged, [this](QTreeWidgetItem* item) { clickRow(item); });
}

ListViewView::~ListViewView() {
  if (edited_) form().door().keepEditOpen({});
}

// --- What the control says

void ListViewView::show() {
  const QSignalBlocker silent(tree_);
  showColumns();
  showRows();
  fitColumns();
  fitWidth();
  showSelection();
}

void ListViewView::showColumns() {
  // Told anew, the header lays itself out anew, and the whole list is painted for a change of one row.
  if (shownColumns_ == list_.ColumnHeaders()) return;
  shownColumns_ = list_.ColumnHeaders();
  const auto count = std::max<std::size_t>(1, list_.ColumnHeaders().size());
  tree_.setColumnCount(static_cast<int>(count));
  tree_.header()->setSectionResizeMode(QHeaderView::Fixed);
  tree_.header()->setSectionResizeMode(0, QHeaderView::Stretch);
  for (int column = 1; column < static_cast<int>(count); ++column)
    tree_.setColumnHidden(column, isHidden(list_, column));
}

namespace {

void write(QTreeWidgetItem& item, int column, int role, const QVariant& value) {
  if (item.data(column, role) != value) item.setData(column, role, value);
}

// A row without a name goes with the one above it.
bool belongsAbove(const ListItem& row) { return row.Text().empty() && row.Index() > 1; }

}  // namespace

// New items come to the tree as they are to be shown: it tells everybody of what changes later.
void ListViewView::showRows() {
  while (tree_.topLevelItemCount() > list_.Count()) delete tree_.takeTopLevelItem(tree_.topLevelItemCount() - 1);
  const int former = tree_.topLevelItemCount();
  QList<QTreeWidgetItem*> fresh;
  bool stripe = true;
  for (int i = 0; i < list_.Count(); ++i) {
    const ListItem& row = *list_.ListItems(i + 1);
    auto& item = i < former ? *tree_.topLevelItem(i) : *fresh.emplace_back(new QTreeWidgetItem);
    stripe = belongsAbove(row) ? stripe : !stripe;
    for (int column = 0; column < tree_.columnCount(); ++column) write(item, column, stripeRole, stripe);
    showRow(row, item);
  }
  tree_.addTopLevelItems(fresh);
}

namespace {

QVariant cellColour(Colour colour) {
  return colour == Colour::WindowText ? QVariant() : QVariant(static_cast<uint>(colour));
}

QFont boldFont(QFont font) {
  font.setBold(true);
  return font;
}

// Nothing where it is that of the list.
QVariant cellFont(const QWidget& list, bool bold) { return bold ? boldFont(list.font()) : QVariant(); }

QVariant cellSide(bool right) {
  return right ? QVariant(static_cast<int>(Qt::AlignRight | Qt::AlignVCenter)) : QVariant();
}

bool isNumber(std::string_view text) {
  double number = 0;
  const char* end = text.data() + text.size();
  return std::from_chars(text.data(), end, number).ptr == end && !text.empty();
}

std::string nameOf(const ListView& list, const ListItem& row) {
  return belongsAbove(row) ? list.ListItems(row.Index() - 1)->Text() : row.Text();
}

// The number that comes first is the level; 0 where there is none.
int levelColumn(const ListView& list, const ListItem& row) {
  for (int column = 1; column <= row.subItemCount(); ++column)
    if (!isHidden(list, column) && isNumber(row.SubItems(column))) return column;
  return 0;
}

QString spokenCell(const std::string& text, bool isLevel) {
  if (!isNumber(text)) return toQt(text);
  return (isLevel ? "niveau " : "base ") + toQt(text);
}

// "Tir, niveau 3": what a screen reader says of a row.
QString spokenRow(const ListView& list, const ListItem& row) {
  QStringList said;
  if (const auto name = nameOf(list, row); !name.empty()) said << toQt(name);
  if (row.Bold()) said << "compétence du profil";
  const int level = levelColumn(list, row);
  for (int column = 1; column <= row.subItemCount(); ++column) {
    const std::string text = row.SubItems(column);
    if (isHidden(list, column) || text.empty()) continue;
    if (!isNumber(text) || column == level) said << spokenCell(text, true);
  }
  return said.join(", ");
}

}  // namespace

void ListViewView::showRow(const ListItem& row, QTreeWidgetItem& item) const {
  Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
  if (list_.labelEdit()) flags |= Qt::ItemIsEditable;
  if (item.flags() != flags) item.setFlags(flags);
  write(item, 0, Qt::DisplayRole, toQt(row.Text()));
  write(item, 0, Qt::FontRole, cellFont(tree_, row.Bold()));
  write(item, 0, cellColourRole, cellColour(row.ForeColor()));
  write(item, 0, Qt::AccessibleTextRole, spokenRow(list_, row));
  if (list_.checkBoxes()) write(item, 0, Qt::CheckStateRole, row.Checked() ? Qt::Checked : Qt::Unchecked);
  const int level = levelColumn(list_, row);
  for (int column = 1; column <= row.subItemCount() && column < tree_.columnCount(); ++column) {
    if (isHidden(list_, column)) continue;  // nobody is to read it
    const std::string text = row.SubItems(column);
    write(item, column, Qt::DisplayRole, toQt(text));
    write(item, column, Qt::AccessibleTextRole, spokenCell(text, column == level));
    write(item, column, Qt::ToolTipRole, tree_.headerItem()->toolTip(column));
    write(item, column, Qt::TextAlignmentRole,
          cellSide(list_.ColumnHeaders()[static_cast<std::size_t>(column)].rightAligned));
    write(item, column, Qt::FontRole, cellFont(tree_, row.ListSubItems(column).Bold()));
    write(item, column, cellColourRole, cellColour(row.ListSubItems(column).ForeColor()));
  }
}

namespace {

// By text, plain and bold.
using Widths = std::array<QHash<QString, int>, 2>;

// Each text is measured once for all lists of a font. No font is kept, for none outlives its application.
Widths& knownWidths(const QFont& font) {
  static QString measuredFont;
  static Widths widths;
  if (const QString key = font.key(); key != measuredFont) {
    measuredFont = key;
    widths = {};
  }
  return widths;
}

int widthOf(const QString& text, const QFont& font, bool bold, Widths& known) {
  auto& widths = known[bold ? 1 : 0];
  if (const auto found = widths.constFind(text); found != widths.constEnd()) return *found;
  return *widths.insert(text, QFontMetrics(bold ? boldFont(font) : font).horizontalAdvance(text));
}

}  // namespace

int ListViewView::widthOfTexts(int column) const {
  const int margin = tree_.style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, &tree_) + 1;
  auto& known = knownWidths(tree_.font());
  int widest = 0;
  for (int i = 0; i < tree_.topLevelItemCount(); ++i) {
    const auto* item = tree_.topLevelItem(i);
    const bool bold = item->data(column, Qt::FontRole).isValid();
    widest = std::max(widest, widthOf(item->text(column), tree_.font(), bold, known));
  }
  return widest + 2 * margin + 2;
}

// As wide as the control says, or wider where the font needs it.
void ListViewView::fitColumns() {
  for (int column = 1; column < static_cast<int>(list_.ColumnHeaders().size()); ++column) {
    const float width = list_.ColumnHeaders()[static_cast<std::size_t>(column)].width;
    if (width > 0) tree_.header()->resizeSection(column, std::max(pixels(width), widthOfTexts(column)));
  }
}

void ListViewView::reveal() {
  if (auto* item = tree_.currentItem()) tree_.scrollToItem(item);
}

// A list that the layout gives no more than it needs.
void ListViewView::fitWidth() {
  if (tree_.sizePolicy().horizontalPolicy() != QSizePolicy::Maximum || list_.Count() == 0) return;
  constexpr int air = 24;
  int width = widthOfTexts(0) + air + 2 * tree_.frameWidth() + tree_.verticalScrollBar()->sizeHint().width();
  for (int column = 1; column < tree_.columnCount(); ++column)
    if (!tree_.isColumnHidden(column)) width += tree_.columnWidth(column);
  tree_.setFixedWidth(std::max(width, tree_.minimumWidth()));
}

void ListViewView::say(const QString& text) {
  auto* item = tree_.currentItem();
  auto* spoken = item ? QAccessible::queryAccessibleInterface(&tree_) : nullptr;
  if (!spoken || !spoken->tableInterface()) return;
  const QSignalBlocker silent(tree_);
  item->setData(0, Qt::AccessibleDescriptionRole, text);
  QAccessibleEvent news(spoken->tableInterface()->cellAt(tree_.indexOfTopLevelItem(item), 0),
                        QAccessible::DescriptionChanged);
  QAccessible::updateAccessibility(&news);
}

void ListViewView::showSelection() {
  auto* item = list_.SelectedItem() ? tree_.topLevelItem(list_.SelectedItem()->Index() - 1) : nullptr;
  if (tree_.currentItem() == item && (!item || item->isSelected())) return;
  tree_.setCurrentItem(item);
  if (item) tree_.scrollToItem(item);
}

// --- What the user does

bool ListViewView::viewportEvent(QEvent& event) {
  if (event.type() == QEvent::Resize && list_.SelectedItem())
    tree_.scrollToItem(tree_.topLevelItem(list_.SelectedItem()->Index() - 1));
  // A drag would walk through the rows and click each on its way.
  if (event.type() == QEvent::MouseMove) return (static_cast<QMouseEvent&>(event).buttons() & Qt::LeftButton) != 0;
  const bool twice = event.type() == QEvent::MouseButtonDblClick;
  if (event.type() != QEvent::MouseButtonPress && !twice) return false;
  const auto& mouse = static_cast<QMouseEvent&>(event);
  return mouse.button() != Qt::LeftButton || pressed(mouse.position().toPoint(), twice);
}

bool ListViewView::pressed(const QPoint& where, bool twice) {
  auto* item = tree_.itemAt(where);
  if (!item) return true;
  const bool again = !std::exchange(entered_, false) && item == tree_.currentItem();
  secondClick_.stop();
  if (list_.checkBoxes() && onCheckBox(*item, where)) {
    toggle(item);
  } else if (twice && list_.labelEdit()) {
    beginEdit();  // the first of the two clicks has clicked the row
  } else {
    clickRow(item);
    if (again && list_.labelEdit()) secondClick_.start();
  }
  return true;
}

bool ListViewView::onCheckBox(QTreeWidgetItem& item, const QPoint& where) const {
  QStyleOptionViewItem option;
  option.initFrom(&tree_);
  option.rect = tree_.visualItemRect(&item);
  option.features = QStyleOptionViewItem::HasCheckIndicator | QStyleOptionViewItem::HasDisplay;
  option.widget = &tree_;
  return tree_.style()->subElementRect(QStyle::SE_ItemViewItemCheckIndicator, &option, &tree_).contains(where);
}

bool ListViewView::treeEvent(QEvent& event) {
  if (event.type() == QEvent::FocusIn) entered_ = static_cast<QFocusEvent&>(event).reason() == Qt::MouseFocusReason;
  if (event.type() != QEvent::KeyPress) return false;
  if (!list_.checkBoxes() && stepPressed(event)) return true;
  const int key = static_cast<QKeyEvent&>(event).key();
  if (key == Qt::Key_Space && list_.checkBoxes())
    toggle(tree_.currentItem());
  else if (key == Qt::Key_F2 && list_.labelEdit()) {
    clickRow(tree_.currentItem());
    beginEdit();
  } else
    return false;
  return true;
}

void ListViewView::clickRow(QTreeWidgetItem* item) {
  if (!item) return;
  const int row = positionOf(item);
  act([&](User& user) { user.row(list_, row); });
}

void ListViewView::toggle(QTreeWidgetItem* item) {
  if (!item) return;
  const int row = positionOf(item);
  act([&](User& user) { user.toggle(list_, row); });
  if (!isDetached() && row <= list_.Count()) tellTick(row);
}

// Qt tells screen readers of no tick in a list.
void ListViewView::tellTick(int row) {
  form().flush();
  auto* spoken = QAccessible::queryAccessibleInterface(&tree_);
  auto* cell = spoken && spoken->tableInterface() ? spoken->tableInterface()->cellAt(row - 1, 0) : nullptr;
  if (!cell) return;
  QAccessible::State ticked;
  ticked.checked = true;
  QAccessibleStateChangeEvent news(cell, ticked);
  QAccessible::updateAccessibility(&news);
}

void ListViewView::beginEdit() {
  if (edited_) return;
  bool allowed = false;
  // The second click of a slow pair counts later, when another tab or a dialog may have come up.
  act([&](User& user) { allowed = user.beginEdit(list_); });
  if (!allowed || isDetached()) return;
  edited_ = list_.SelectedItem();
  auto* row = tree_.topLevelItem(edited_->Index() - 1);
  tree_.editItem(row, 0);
  // Whatever the user does next, the name counts first: that act may take the editor away.
  form().door().keepEditOpen([this, index = tree_.indexFromItem(row)] {
    auto* editor = tree_.indexWidget(index);
    if (!editor) return;
    emit delegate_.commitData(editor);
    emit delegate_.closeEditor(editor);
  });
}

void ListViewView::endEdit(const QString& text) {
  form().door().keepEditOpen({});
  if (auto row = std::exchange(edited_, nullptr)) act([&](User& user) { user.endEdit(list_, row, fromQt(text)); });
}

void ListViewView::editClosed() {
  form().door().keepEditOpen({});
  edited_.reset();
  // The editor has lost the keyboard to another window.
  if (!tree_.hasFocus()) form().giveKeyboardOnReturn(tree_);
}

}  // namespace orvane
