#include "tests/screen/likeness.h"

#include <algorithm>

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QTabBar>
#include <QTabWidget>
#include <QTreeWidget>

#include "canvas/qt_text.h"
#include "screen/list_delegate.h"
#include "screen/measures.h"
#include "screen/readable_colours.h"
#include "sheet/frmFeuille.h"
#include "surface/check_box.h"
#include "surface/combo_box.h"
#include "surface/command_button.h"
#include "surface/frame.h"
#include "surface/label.h"
#include "surface/list_box.h"
#include "surface/list_view.h"
#include "surface/option_button.h"
#include "surface/scroll_bar.h"
#include "surface/tab_control.h"
#include "surface/text_box.h"

namespace orvane::test {
namespace {

// One control beside its widget.
class Comparison {
 public:
  explicit Comparison(const Control& control, const QWidget& widget) : control_(control), widget_(widget) {
    same("Enabled", widget.isEnabledTo(widget.parentWidget()), control.Enabled() || isOnlyRead(control, widget));
    same("Visible", widget.isVisibleTo(widget.parentWidget()), control.Visible());
    as(&Comparison::place);
    as(&Comparison::line) || as(&Comparison::lines) || as(&Comparison::combo) || as(&Comparison::list) ||
        as(&Comparison::check) || as(&Comparison::option) || as(&Comparison::button) || as(&Comparison::label) ||
        as(&Comparison::tabs) || as(&Comparison::bar) || as(&Comparison::rows) || as(&Comparison::frame) ||
        as(&Comparison::image);
  }
  std::string found;

 private:
  template <class C, class W>
  bool as(void (Comparison::*compare)(const C&, const W&)) {
    const auto* control = dynamic_cast<const C*>(&control_);
    const auto* widget = dynamic_cast<const W*>(&widget_);
    if (control && widget) (this->*compare)(*control, *widget);
    return control && widget;
  }
  template <class T>
  void same(const char* what, const T& shown, const T& held) {
    if (shown != held) found += control_.id() + " " + what + "\n";
  }

  void colour(Colour held) {
    const QPalette box = boxPalette(held, QApplication::palette(&widget_));
    same("BackColor", widget_.palette().color(QPalette::Active, QPalette::Base),
         box.color(QPalette::Active, QPalette::Base));
    same("mark in words", widget_.accessibleDescription().contains("contrainte"), !markInWords(held).isEmpty());
  }
  // A box of lines that is only read can be scrolled while it is closed.
  static bool isOnlyRead(const Control& control, const QWidget& widget) {
    const auto* box = dynamic_cast<const TextBox*>(&control);
    return box && box->readOnly() && qobject_cast<const QPlainTextEdit*>(&widget);
  }
  void line(const TextBox& box, const QLineEdit& edit) {
    same("Text", edit.text(), toQt(box.Text()));
    same("read-only", edit.isReadOnly(), box.readOnly());
    const bool isValue = box.readOnly() && markInWords(box.BackColor()).isEmpty();
    same("frame", edit.hasFrame(), !box.readOnly());
    same("ground", edit.palette().color(QPalette::Base).alpha(), isValue ? 0 : 255);
    if (!isValue) colour(box.BackColor());
  }
  void lines(const TextBox& box, const QPlainTextEdit& edit) {
    // toPlainText would turn no-break spaces into blanks.
    same("Text", edit.document()->toRawText().replace(QChar::ParagraphSeparator, '\n'), shownLines(box.Text()));
    same("read-only", edit.isReadOnly(), box.readOnly());
    colour(box.BackColor());
  }
  // What is hidden may be a secret.
  void combo(const ComboBox& box, const QComboBox& combo) {
    colour(box.BackColor());
    same("ListCount", combo.count(), box.Visible() ? box.ListCount() : 0);
    if (!box.Visible()) return;
    for (int i = 0; i < std::min(combo.count(), box.ListCount()); ++i)
      same("List", combo.itemText(i), toQt(box.List(i)));
    same("ListIndex", combo.currentIndex(), box.ListIndex());
    same("Text", combo.currentText(), toQt(box.Text()));
  }
  void list(const ListBox& box, const QListWidget& list) {
    same("ListCount", list.count(), box.ListCount());
    for (int i = 0; i < std::min(list.count(), box.ListCount()); ++i)
      same("List", list.item(i)->text(), toQt(box.List(i)));
    same("ListIndex", list.currentRow(), box.ListIndex());
  }
  void check(const CheckBox& box, const QAbstractButton& button) {
    same("Value", button.isChecked(), box.Value() != 0);
    same("Caption", button.text(), toQt(box.Caption()));
  }
  void option(const OptionButton& option, const QAbstractButton& button) {
    same("Value", button.isChecked(), option.Value());
    same("Caption", button.text(), toQt(option.Caption()));
  }
  void button(const CommandButton& command, const QAbstractButton& button) {
    const bool isArrow = command.picture() != CommandButton::Picture::None;
    if (!isArrow) same("Caption", button.text(), toQt(command.Caption()));
    same("picture", !button.icon().isNull(), isArrow);
    same("auto-repeat", button.autoRepeat(), isArrow);
  }
  // Names from the data files are no markup.
  void label(const Label& label, const QLabel& text) {
    same("Caption", text.text(), shownLines(label.Caption()));
    same("format", text.textFormat(), Qt::PlainText);
  }
  void frame(const Frame& frame, const QGroupBox& box) { same("Caption", box.title(), toQt(frame.Caption())); }
  void image(const Image&, const QLabel& label) { same("picture", label.pixmap(Qt::ReturnByValue).isNull(), false); }
  void place(const PlacedControl& control, const QWidget& widget) {
    if (control.widthTwips() <= 0 || control.heightTwips() <= 0) return;
    same("place", widget.geometry(),
         QRect(pixels(control.leftTwips()), pixels(control.topTwips()), pixels(control.widthTwips()),
               pixels(control.heightTwips()) + freeBelow(control)));
  }
  // What the hidden bar below leaves to the one at the side.
  static int freeBelow(const PlacedControl& control) {
    const auto* sheet = dynamic_cast<const frmFeuille*>(&control.form());
    return sheet && &control == &sheet->VScroll && !sheet->HScroll.Visible() ? pixels(sheet->HScroll.heightTwips()) : 0;
  }
  void tabs(const TabControl& tabs, const QTabWidget& widget) {
    same("Tab", widget.currentIndex(), tabs.Tab());
    for (int i = 0; i < widget.count(); ++i) {
      same("TabEnabled", widget.tabBar()->isTabEnabled(i), tabs.TabEnabled(i));
      same("TabVisible", widget.isTabVisible(i), tabs.TabVisible(i));
    }
  }
  void bar(const ScrollBar& control, const QScrollBar& bar) {
    same("Max", bar.maximum(), std::max(0, control.Max()));
    same("Value", bar.value(), control.Value());
  }
  void rows(const ListView& list, const QTreeWidget& tree) {
    same("Count", tree.topLevelItemCount(), list.Count());
    for (int i = 0; i < std::min(tree.topLevelItemCount(), list.Count()); ++i)
      row(list, tree, *list.ListItems(i + 1), *tree.topLevelItem(i));
    const auto* selected = list.SelectedItem() ? tree.topLevelItem(list.SelectedItem()->Index() - 1) : nullptr;
    same("SelectedItem", const_cast<const QTreeWidgetItem*>(tree.currentItem()), selected);
    same("selection", tree.selectedItems().size(), qsizetype{selected != nullptr});
  }
  void row(const ListView& list, const QTreeWidget& tree, const ListItem& row, const QTreeWidgetItem& item) {
    cell(item, 0, row.Text(), row.Bold(), row.ForeColor());
    if (list.checkBoxes()) same("Checked", item.checkState(0) == Qt::Checked, row.Checked());
    for (int i = 1; i <= row.subItemCount(); ++i) {
      if (tree.isColumnHidden(i)) continue;
      const auto& look = row.ListSubItems(i);
      cell(item, i, row.SubItems(i), look.Bold(), look.ForeColor());
      const bool right = (item.textAlignment(i) & Qt::AlignRight) != 0;
      same("alignment", right, list.ColumnHeaders()[static_cast<std::size_t>(i)].rightAligned);
    }
  }
  void cell(const QTreeWidgetItem& item, int column, const std::string& text, bool bold, Colour colour) {
    same("row Text", item.text(column), toQt(text));
    same("row Bold", item.font(column).bold(), bold);
    const QVariant shown = item.data(column, cellColourRole);
    same("row ForeColor", shown.isValid() ? static_cast<Colour>(shown.toUInt()) : Colour::WindowText, colour);
  }

  const Control& control_;
  const QWidget& widget_;
};

}  // namespace

QWidget* windowOf(const Windows& windows, const Form& form) {
  if (QWidget* child = windows.childOf(form)) return child;
  return windows.dialogOf(form);
}

std::string unlike(const Form& form, const QWidget& window) {
  std::string found;
  for (const auto* control : form.controls())
    if (const auto* widget = window.findChild<QWidget*>(widgetName(*control)))
      found += Comparison(*control, *widget).found;
  return found;
}

std::string unlike(const Desktop& desktop, const Windows& windows) {
  std::string found;
  for (const auto& form : desktop.Forms()) {
    const QWidget* window = windowOf(windows, *form);
    if (!window) continue;
    found += unlike(*form, *window);
    if (window->windowTitle() != toQt(form->Caption())) found += form->Name() + " Caption\n";
  }
  const auto* active = desktop.activeChild();
  if (windows.mainWindow() &&
      windows.mainWindow()->area().activeSubWindow() != (active ? windows.childOf(*active) : nullptr))
    found += "the active window\n";
  return found;
}

}  // namespace orvane::test
