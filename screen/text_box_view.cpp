#include "screen/text_box_view.h"

#include <algorithm>

#include <QApplication>
#include <QSignalBlocker>
#include <QTextCursor>

#include "canvas/qt_text.h"
#include "screen/line_edits.h"
#include "screen/readable_colours.h"

namespace orvane {
namespace {

// What toPlainText gives, but for no-break spaces, which it turns into blanks.
QString linesIn(const QPlainTextEdit& edit) {
  QString text = edit.document()->toRawText();
  return text.replace(QChar::ParagraphSeparator, '\n').replace(QChar::LineSeparator, '\n');
}

}  // namespace

LineEditView::LineEditView(TextBox& box, QLineEdit& edit, FormView& form)
    : View(box, edit, form), box_(box), edit_(edit) {
  edit_.setReadOnly(box_.readOnly());
  edit_.setFrame(!box_.readOnly());
  keepToOneLine(edit_);
  onEvent(edit_, [this](QEvent& event) { return enteredAtEnd(edit_, edit_, event); });
  on(&edit_, &QLineEdit::textEdited, [this] { act([&](User& user) { user.type(box_, fromQt(edit_.text())); }); });
}

void LineEditView::show() {
  const QSignalBlocker silent(edit_);
  showBoxColour(edit_, box_.BackColor());
  if (box_.readOnly() && markInWords(box_.BackColor()).isEmpty()) edit_.setPalette(valuePalette());
  const QString text = toQt(box_.Text());
  if (edit_.text() == text) return;
  const int cursor = edit_.cursorPosition();
  edit_.setText(text);
  edit_.setCursorPosition(edit_.hasFocus() ? std::min<int>(cursor, static_cast<int>(text.size())) : 0);
}

MultiLineView::MultiLineView(TextBox& box, QPlainTextEdit& edit, FormView& form)
    : View(box, edit, form), box_(box), edit_(edit) {
  edit_.setReadOnly(box_.readOnly());
  edit_.setTabChangesFocus(true);
  // A box that cannot be typed into is read with the keyboard all the same.
  if (box_.readOnly()) edit_.setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  on(&edit_, &QPlainTextEdit::textChanged, [this] { typed(); });
}

void MultiLineView::show() {
  const QSignalBlocker silent(edit_);
  showBoxColour(edit_, box_.BackColor());
  if (box_.readOnly()) edit_.setPalette(readingPalette(box_.Enabled(), QApplication::palette(&edit_)));
  const QString text = shownLines(box_.Text());
  if (linesIn(edit_) == text) return;
  const int position = edit_.textCursor().position();
  edit_.setPlainText(text);
  QTextCursor cursor = edit_.textCursor();
  cursor.setPosition(edit_.hasFocus() && !box_.readOnly() ? std::min(position, static_cast<int>(text.size())) : 0);
  edit_.setTextCursor(cursor);
}

void MultiLineView::typed() {
  // The document also reports changes of its formats.
  const QString text = linesIn(edit_);
  if (text == shownLines(box_.Text())) return;
  act([&](User& user) { user.type(box_, typedLines(text)); });
}

}  // namespace orvane
