#include "screen/label_view.h"

#include <QKeyEvent>
#include <QMouseEvent>

#include "canvas/qt_text.h"

namespace orvane {
namespace {

bool isPress(const QKeyEvent& key) {
  return key.key() == Qt::Key_Space || key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter;
}

}  // namespace

LabelView::LabelView(Label& label, QLabel& text, FormView& form) : View(label, text, form), label_(label), text_(text) {
  text_.setTextFormat(Qt::PlainText);  // names from the data files are no markup
  onEvent(text_, [this](QEvent& event) { return happened(event); });
}

bool LabelView::happened(const QEvent& event) {
  switch (event.type()) {
    case QEvent::MouseButtonPress:
      return static_cast<const QMouseEvent&>(event).button() == Qt::LeftButton && click();
    case QEvent::KeyPress:
      return isPress(static_cast<const QKeyEvent&>(event)) && click();
    case QEvent::FocusIn:
    case QEvent::FocusOut:
      underline(event.type() == QEvent::FocusIn);
      return false;
    default:
      return false;
  }
}

bool LabelView::click() {
  act([this](User& user) { user.click(label_); });
  return true;
}

// Shows where the keyboard is.
void LabelView::underline(bool underlined) {
  QFont font = text_.font();
  font.setUnderline(underlined);
  text_.setFont(font);
}

void LabelView::show() {
  const QString caption = shownLines(label_.Caption());
  if (text_.text() != caption) text_.setText(caption);
}

}  // namespace orvane
