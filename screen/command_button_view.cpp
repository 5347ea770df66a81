#include "screen/command_button_view.h"

#include <QKeyEvent>
#include <QStyle>

#include "canvas/qt_text.h"
#include "screen/form_view.h"
#include "screen/pointer_shape.h"
#include "screen/tab_stops.h"

namespace orvane {

CommandButtonView::CommandButtonView(CommandButton& command, QAbstractButton& button, FormView& form)
    : View(command, button, form), command_(command), button_(button), passing_(*new QShortcut(button.parentWidget())) {
  button_.setFocusPolicy(Qt::StrongFocus);
  if (command_.picture() != CommandButton::Picture::None) showArrow();
  on(&button_, &QAbstractButton::clicked, [this] { click(); });
  onEvent(button_, [this](QEvent& event) { return enterPressed(event); });
  on(&passing_, &QShortcut::activated, [this] { passOn(); });
}

void CommandButtonView::showArrow() {
  const bool left = command_.picture() == CommandButton::Picture::LeftArrow;
  button_.setIcon(button_.style()->standardIcon(left ? QStyle::SP_ArrowLeft : QStyle::SP_ArrowRight));
  button_.setMinimumSize(button_.minimumSize().expandedTo(button_.sizeHint()));  // it grows with the font
  button_.setAutoRepeat(true);
}

void CommandButtonView::show() {
  if (const QString caption = toQt(command_.Caption()); !caption.isEmpty() && button_.text() != caption)
    button_.setText(caption);
  keepLetter();
}

void CommandButtonView::keepLetter() {
  passing_.setKey(command_.Enabled() ? QKeySequence() : QKeySequence::mnemonic(button_.text()));
}

void CommandButtonView::passOn() {
  if (auto* next = tabStopBehind(button_, form().root())) next->setFocus(Qt::ShortcutFocusReason);
}

// Qt itself lets Enter press buttons in dialogs only.
bool CommandButtonView::enterPressed(const QEvent& event) {
  if (event.type() != QEvent::KeyPress) return false;
  const int key = static_cast<const QKeyEvent&>(event).key();
  if (key != Qt::Key_Return && key != Qt::Key_Enter) return false;
  click();
  return true;
}

void CommandButtonView::click() {
  // A shortcut presses a button without bringing the keyboard there; the form's focus does move.
  if (!button_.hasFocus()) button_.setFocus(Qt::ShortcutFocusReason);
  // A button may compose or save a sheet; an arrow only steps.
  const auto nothing = [](User&) {};
  if (command_.picture() != CommandButton::Picture::None) return takeStep(command_, nothing, nothing);
  const PointerShape busy(Qt::WaitCursor);
  act([this](User& user) { user.click(command_); });
}

}  // namespace orvane
