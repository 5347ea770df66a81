#include "screen/combo_box_view.h"

#include <algorithm>

#include <QAccessible>
#include <QLineEdit>
#include <QSignalBlocker>

#include "canvas/qt_text.h"
#include "screen/line_edits.h"
#include "screen/readable_colours.h"

namespace orvane {
namespace {

// Who rolls the page with the pointer above a box does not mean to pick another entry, which may cost all skills.
bool rollPast(QEvent& event) {
  if (event.type() != QEvent::Wheel) return false;
  event.ignore();  // the page below rolls
  return true;
}

int leadingDigits(const QString& text) {
  const auto end = std::find_if_not(text.begin(), text.end(), [](QChar sign) { return sign.isDigit(); });
  return static_cast<int>(end - text.begin());
}

}  // namespace

QString NumberDelegate::displayText(const QVariant& value, const QLocale&) const {
  constexpr auto blankOfADigit = QChar(0x2007);
  const QString text = value.toString();
  const int own = leadingDigits(text);
  return own == 0 ? text : QString(std::max(0, digits - own), blankOfADigit) + text;
}

ComboBoxView::ComboBoxView(ComboBox& box, SteadyCombo& combo, FormView& form)
    : View(box, combo, form), box_(box), combo_(combo) {
  combo_.setEditable(box_.editable());
  combo_.setInsertPolicy(QComboBox::NoInsert);
  combo_.setFocusPolicy(Qt::StrongFocus);
  onEvent(combo_, rollPast);
  on(&combo_, &QComboBox::activated, [this](int index) { act([&](User& user) { user.pick(box_, index); }); });
  if (auto* edit = combo_.lineEdit()) {
    keepToOneLine(*edit);
    onEvent(combo_, [this, edit](QEvent& event) { return enteredAtEnd(combo_, *edit, event); });
    edit->setAccessibleName(QAccessible::queryAccessibleInterface(&combo_)->text(QAccessible::Name));
    on(edit, &QLineEdit::textEdited, [this, edit] { act([&](User& user) { user.type(box_, fromQt(edit->text())); }); });
  }
}

bool ComboBoxView::entriesDiffer() const {
  if (combo_.count() != box_.ListCount()) return true;
  for (int i = 0; i < box_.ListCount(); ++i)
    if (combo_.itemText(i) != toQt(box_.List(i))) return true;
  return false;
}

void ComboBoxView::showEntries() {
  if (!entriesDiffer()) return;
  combo_.clear();
  numbers_.digits = 0;
  for (int i = 0; i < box_.ListCount(); ++i) {
    combo_.addItem(toQt(box_.List(i)));
    numbers_.digits = std::max(numbers_.digits, leadingDigits(combo_.itemText(i)));
  }
  if (numbers_.digits > 0) combo_.setListDelegate(numbers_);
}

void ComboBoxView::showSelection() {
  auto* edit = combo_.lineEdit();
  const int cursor = edit ? edit->cursorPosition() : 0;
  if (combo_.currentIndex() != box_.ListIndex()) combo_.setCurrentIndex(box_.ListIndex());
  if (!edit) return;
  const QSignalBlocker silent(edit);
  const QString text = toQt(box_.Text());
  if (edit->text() != text) edit->setText(text);
  if (combo_.hasFocus()) edit->setCursorPosition(std::min(cursor, static_cast<int>(text.size())));
}

void ComboBoxView::show() {
  const QSignalBlocker silent(combo_);
  showBoxColour(combo_, box_.BackColor());
  if (!box_.Visible()) return combo_.clear();  // what is hidden may be a secret
  showEntries();
  showSelection();
}

}  // namespace orvane
