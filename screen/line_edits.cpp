#include "screen/line_edits.h"

#include <QComboBox>
#include <QFocusEvent>
#include <QPlainTextEdit>
#include <QRegularExpression>

namespace orvane {
namespace {

QString onOneLine(QString text) {
  static const QRegularExpression blanks(R"(\r\n|[\t\n\v\f\r\x{85}\x{2028}\x{2029}])");
  static const QRegularExpression control(R"(\p{Cc})");
  return text.replace(blanks, " ").remove(control);
}

bool comesByKeyboard(Qt::FocusReason reason, const QLineEdit& edit) {
  // The first field of a window that opens.
  if (reason == Qt::ActiveWindowFocusReason) return !edit.isModified() && edit.cursorPosition() == 0;
  return reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason || reason == Qt::ShortcutFocusReason;
}

}  // namespace

void keepToOneLine(QLineEdit& edit) {
  QObject::connect(&edit, &QLineEdit::textEdited, &edit, [&edit](const QString& text) {
    const QString line = onOneLine(text);
    if (line == text) return;
    const QString before = onOneLine(text.left(edit.cursorPosition()));
    edit.setText(line);
    edit.setCursorPosition(static_cast<int>(before.size()));
  });
}

bool enteredAtEnd(QWidget& holder, QLineEdit& edit, const QEvent& event) {
  if (event.type() != QEvent::FocusIn || !comesByKeyboard(static_cast<const QFocusEvent&>(event).reason(), edit))
    return false;
  QFocusEvent selectingNothing(QEvent::FocusIn, Qt::OtherFocusReason);
  static_cast<QObject&>(holder).event(&selectingNothing);
  edit.end(false);
  return true;
}

void putCursorAtEnd(QWidget& widget) {
  const auto* combo = qobject_cast<QComboBox*>(&widget);
  if (auto* edit = combo ? combo->lineEdit() : qobject_cast<QLineEdit*>(&widget)) edit->end(false);
  auto* lines = qobject_cast<QPlainTextEdit*>(&widget);
  if (lines && !lines->isReadOnly()) lines->moveCursor(QTextCursor::End);
}

}  // namespace orvane
